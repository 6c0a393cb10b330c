#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <tvpolicy/agent/DocumentCheck.h>

#include "io/Console.h"

namespace tvpolicy::cli {

/// Documents larger than this are refused before they are read into memory or parsed.
constexpr std::size_t defaultMaxDocumentMB = 64;

/// A document's bytes, or why they could not be had: "cannot read PATH: why", with the code
/// EISDIR when the path names a folder.
using DocumentRead = Result<std::string>;

/// Reads the file at `path` (standard input for "-") up to `maxBytes`.
DocumentRead readDocument(const std::string& path, std::size_t maxBytes);

/// The content of `path` (or standard input for "-"); when it cannot be read, "tvpolicy
/// COMMAND: why" goes to the person's standard error and the result is empty.
std::optional<std::string> loadDocument(Console& console, const std::string& command, const std::string& path,
                                        std::size_t maxBytes = defaultMaxDocumentMB << 20);

/// What is wrong with a document in a person's words: "is empty", or "not XML: <the reader's
/// words> at line L, column C".
std::string problemOf(const tvpolicy::DocumentCheck& check, const std::string& text);

/// loadDocument, then the document must read as XML: otherwise "tvpolicy COMMAND: PATH: why"
/// on standard error and an empty result.
std::optional<std::string> loadXmlDocument(Console& console, const std::string& command, const std::string& path);

}  // namespace tvpolicy::cli
