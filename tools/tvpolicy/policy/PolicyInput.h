#pragma once

#include <memory>
#include <string>

#include <tvpolicy/policy/Policy.h>

#include "io/Console.h"
#include "policy/DocumentFile.h"

namespace tvpolicy::cli {

/// A policy read from a file or standard input ("-") the way `run` reads it: larger than
/// `maxBytes` is refused before parsing; a document that does not parse gives the library's
/// message and then the cause ("is empty", "is a directory", "not XML: ... at line L, column C");
/// a document whose root is not <policy> is refused. Messages go to standard error behind
/// "tvpolicy COMMAND: "; the result is null then. `bytes` keeps the text that was read.
std::unique_ptr<Policy> readPolicy(const std::string& source, std::size_t maxBytes, const std::string& command,
                                   Console& console, std::string& bytes);

/// "standard input" for "-", else the path.
std::string sourceName(const std::string& source);

}  // namespace tvpolicy::cli
