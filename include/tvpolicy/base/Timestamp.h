#pragma once

#include <ostream>
#include <string>

#include <tvpolicy/export.h>

namespace tvi {

/// Writes the current UTC time as "%Y-%m-%d %H:%M:%S UTC :: " into `text`: in front of it when
/// `prepend` is true, in its place otherwise. Returns `text`.
TVPOLICY_API std::string& timestamp(std::string& text, bool prepend);

/// Starts a log line: writes a fresh timestamp to `stream` and returns it. A stream that
/// discards its output (failed, or without a buffer) is returned untouched, at no cost.
TVPOLICY_API std::ostream& tslog(std::ostream& stream);

}  // namespace tvi
