#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include <tvpolicy/policy/Task.h>

namespace tvpolicy::checks {

/// Stores an attribute's value in the text field its name selects (names compared exactly);
/// an unknown name changes nothing.
inline void assignAttribute(const Task::Attribute& attribute,
                            std::initializer_list<std::pair<const char*, std::string*>> fields)
{
    for (const auto& [name, field] : fields) {
        if (attribute.first == name) {
            *field = attribute.second;
            return;
        }
    }
}

/// The attributes a version check reads: its kind's own, then "required", "delim" and
/// "operation".
inline std::vector<std::string> versionCheckAttributes(std::vector<std::string> own)
{
    own.insert(own.end(), {"required", "delim", "operation"});
    return own;
}

}  // namespace tvpolicy::checks
