#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tvpolicy {

/// A place in a policy document: 1-based line and column as the XML reader counts them; 0 when
/// unknown (a task built in code).
struct SourceLocation {
    std::uint64_t line = 0;
    std::uint64_t column = 0;
};

/// A check as its policy wrote it: the element, its attributes in document order, and those
/// of its attributes that the element's kind does not read (they change nothing).
struct TaskSource {
    std::string element;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<std::string> unknownAttributes;
    SourceLocation location;
};

/// An element of a section that names no registered check kind. The parse passes over it and
/// over everything it holds, so it has no part in the section's outcome.
struct IgnoredElement {
    std::string element;
    SourceLocation location;
};

}  // namespace tvpolicy
