#pragma once

#include <string>
#include <string_view>

namespace tvpolicy::host {

/// The last component of an executable's path, as basename(3) gives it: trailing slashes do not
/// count, and a path made of slashes only is "/".
std::string executableName(std::string_view path);

/// Whether the file name of the executable at `path` is `name`.
bool isExecutableNamed(std::string_view path, std::string_view name);

}  // namespace tvpolicy::host
