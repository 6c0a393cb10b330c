#pragma once

#include <cstddef>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/TaskSource.h>

namespace tvpolicy {

/// What a document is, as the agent's document readers would see it: whether it reads as XML
/// within their limits, the reader's words for the first fatal problem and where it stood, and
/// the document element with its namespace. The readers themselves accept anything and keep
/// their defaults; this is for tools that must tell a person that a file is not what it claims.
struct DocumentCheck {
    bool readable = false;
    std::string problem;
    SourceLocation location;
    std::string rootElement;    ///< local name of the document element; empty when none
    std::string rootNamespace;  ///< its namespace URI; empty for none
    /// Elements in the agent schema namespace, the only ones the agent's readers take.
    std::size_t agentElements = 0;
};

/// Reads `text` with the same hardened DOM reader as the agent's documents (namespaces on).
TVPOLICY_API DocumentCheck checkDocument(const std::string& text);

}  // namespace tvpolicy
