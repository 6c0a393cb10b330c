#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
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
    std::vector<TomlMember> members;  ///< Table, in the order of the file; added with add()

    /// How a table came to be, which decides what may still add to it.
    bool headed = false;      ///< named by its own [header] (or an element of [[header]])
    bool dotted = false;      ///< made by a dotted key (a.b = 1)
    bool sealed = false;      ///< written inline ({...}): nothing may add to it later
    bool tableArray = false;  ///< an array made by [[header]]s

    bool is(Kind wanted) const { return kind == wanted; }
    /// The member named `key` of a table; null when there is none.
    const TomlValue* find(const std::string& key) const;
    TomlValue* find(const std::string& key);
    /// Appends the member `key` (not yet there) to a table and gives its value: `value`, or
    /// an empty table.
    TomlValue& add(const std::string& key, TomlValue value);
    TomlValue& add(const std::string& key) { return add(key, TomlValue()); }

private:
    std::map<std::string, std::size_t> positions_;  ///< where each member is in `members`
};

struct TomlMember {
    std::string key;
    TomlValue value;
};

inline const TomlValue* TomlValue::find(const std::string& key) const
{
    const auto found = positions_.find(key);
    return found == positions_.end() ? nullptr : &members[found->second].value;
}

inline TomlValue* TomlValue::find(const std::string& key)
{
    return const_cast<TomlValue*>(static_cast<const TomlValue&>(*this).find(key));
}

inline TomlValue& TomlValue::add(const std::string& key, TomlValue value)
{
    positions_.emplace(key, members.size());
    members.push_back({key, std::move(value)});
    return members.back().value;
}

}  // namespace tvpolicy::cli::agent
