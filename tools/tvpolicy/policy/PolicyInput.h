#pragma once

#include <memory>
#include <string>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/policy/Policy.h>

#include "io/Console.h"
#include "policy/DocumentFile.h"

namespace tvpolicy::cli {

/// Why a policy could not be read: the first line said to a person (the cause), and the
/// library's own message as it gave it, advice included (empty when the library did not read
/// the document: a missing file, the size limit, a root that is not <policy>).
struct PolicyReadFailure {
    std::string cause;
    std::string libraryMessage;
};

/// A policy read from a file or standard input ("-") the way `run` reads it: larger than
/// `maxBytes` is refused before parsing; a document that does not parse gives the library's
/// message and then the cause ("is empty", "is a directory", "not XML: ... at line L, column C");
/// a document whose root is not <policy> is refused. Messages go to standard error behind
/// "tvpolicy COMMAND: "; the result is null then. `bytes` keeps the text that was read.
std::unique_ptr<Policy> readPolicy(const std::string& source, std::size_t maxBytes, const std::string& command,
                                   Console& console, std::string& bytes, PolicyReadFailure* failure = nullptr);

/// The same for a document already read from `source`.
std::unique_ptr<Policy> parsePolicy(DocumentRead input, const std::string& source, const std::string& command,
                                    Console& console, std::string& bytes, PolicyReadFailure* failure = nullptr);

/// The same reading of a policy already in memory, named `name` in the messages: a failure
/// (one or two lines, no prefix) when it is not a policy; `libraryMessage`, when given, gets
/// the library's own message then.
Result<std::unique_ptr<Policy>> parsePolicy(const std::string& text, const std::string& name,
                                            std::string* libraryMessage = nullptr);

/// Reads the sections that the policy builds from an address (`include`) and its options
/// before the run, telling `console` about each include unless `quiet`.
void readIncludes(Policy& policy, Console& console, bool quiet = false);

/// "standard input" for "-", else the path.
std::string sourceName(const std::string& source);

}  // namespace tvpolicy::cli
