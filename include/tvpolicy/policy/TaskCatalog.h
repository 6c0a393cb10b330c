#pragma once

#include <string>
#include <vector>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// The attribute names that each task kind reads from its element, for tools that check or
/// describe policies. Every built-in kind describes itself beside its registration with
/// TaskFactory; a kind nobody described is unknown here.
class TVPOLICY_API TaskCatalog {
public:
    TaskCatalog() = delete;

    /// Records the attributes that `kind` (a registered name such as "FileTask") reads, in the
    /// order a person should see them. A second description of a kind replaces the first.
    static bool describe(const std::string& kind, std::vector<std::string> attributes);
    /// The attributes `kind` reads; null for a kind nobody described.
    static const std::vector<std::string>* attributesOf(const std::string& kind);
    /// Whether `kind` reads `attribute` (names compared exactly). A kind nobody described reads
    /// nothing.
    static bool reads(const std::string& kind, const std::string& attribute);
};

}  // namespace tvpolicy
