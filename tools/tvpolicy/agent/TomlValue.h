#pragma once

#include <string>
#include <vector>

namespace tvpolicy::cli::agent {

struct TomlMember;

/// One value of a TOML document. Strings are held decoded; floats and dates and times as the
/// file writes them, for what reads them here only ever needs to name their type.
struct TomlValue {
    enum class Kind { String, Integer, Float, Boolean, DateTime, Array, Table };

    Kind kind = Kind::Table;
    std::string text;                 ///< String: the decoded text; Float, DateTime: as written
    long long integer = 0;            ///< Integer
    bool boolean = false;             ///< Boolean
    std::vector<TomlValue> items;     ///< Array
    std::vector<TomlMember> members;  ///< Table, in the order of the file

    /// How a table came to be, which decides what may still add to it.
    bool headed = false;      ///< named by its own [header] (or an element of [[header]])
    bool dotted = false;      ///< made by a dotted key (a.b = 1)
    bool sealed = false;      ///< written inline ({...}): nothing may add to it later
    bool tableArray = false;  ///< an array made by [[header]]s

    bool is(Kind wanted) const { return kind == wanted; }
    /// The member named `key` of a table; null when there is none.
    const TomlValue* find(const std::string& key) const;
    TomlValue* find(const std::string& key);
};

struct TomlMember {
    std::string key;
    TomlValue value;
};

inline const TomlValue* TomlValue::find(const std::string& key) const
{
    for (const TomlMember& member : members) {
        if (member.key == key) {
            return &member.value;
        }
    }
    return nullptr;
}

inline TomlValue* TomlValue::find(const std::string& key)
{
    return const_cast<TomlValue*>(static_cast<const TomlValue&>(*this).find(key));
}

}  // namespace tvpolicy::cli::agent
