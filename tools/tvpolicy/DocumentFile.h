#pragma once

#include <optional>
#include <string>

#include "Console.h"

namespace cli {

/// The content of `path`; when it cannot be read, "tvpolicy COMMAND: why" goes to the person's
/// standard error and the result is empty.
std::optional<std::string> loadDocument(Console& console, const std::string& command, const std::string& path);

}  // namespace cli
