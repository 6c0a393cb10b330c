#pragma once

#include <string>
#include <utility>
#include <vector>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::parse {

/// One value of an XML property list.
struct PlistValue {
    enum class Type { String, Integer, Real, Boolean, Date, Data, Array, Dictionary, Unknown };

    Type type = Type::Unknown;
    /// The element's text for the scalar types, in UTF-8 ("true" or "false" for booleans).
    std::string text;
    /// The elements of an array.
    std::vector<PlistValue> items;
    /// The entries of a dictionary, in document order.
    std::vector<std::pair<std::string, PlistValue>> entries;

    /// The value of the first entry named `key` of a dictionary; null when there is none or
    /// this is not a dictionary.
    const PlistValue* find(const std::string& key) const;
    /// The text of entry `key` when it is a string; empty otherwise.
    std::string stringAt(const std::string& key) const;
};

/// Parses an XML property list with the library's hardened reader (no external DTD or entity
/// is read, nesting is bounded). The value of the root `plist` element, or nothing with
/// `error` set when the document is not a well-formed property list.
Result<PlistValue> parsePropertyList(const std::string& text);

}  // namespace tvpolicy::parse
