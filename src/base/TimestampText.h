#pragma once

#include <ctime>
#include <string>

namespace tvi {

/// Writes `when` as the log's "%Y-%m-%d %H:%M:%S UTC :: " into `text`, in its place.
void timestampText(std::time_t when, std::string& text);

}  // namespace tvi
