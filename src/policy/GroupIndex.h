#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <tvpolicy/policy/Section.h>

namespace tvpolicy::policy {

/// (key, section) pairs in key order.
using GroupMembers = std::vector<std::pair<std::string, Section*>>;

/// The sections that are not primary, by group, each group's in key order: what a primary's
/// walk over all items for its group's secondaries finds, gathered in one pass.
inline std::unordered_map<std::string, GroupMembers> secondariesByGroup(const std::map<std::string, Section*>& items)
{
    std::unordered_map<std::string, GroupMembers> groups;
    for (const auto& [key, section] : items) {
        if (!section->isPrimary()) {
            groups[section->getGroup()].emplace_back(key, section);
        }
    }
    return groups;
}

/// The members of `group`, or none.
inline const GroupMembers& membersOf(const std::unordered_map<std::string, GroupMembers>& groups,
                                     const std::string& group)
{
    static const GroupMembers none;
    auto found = groups.find(group);
    return found != groups.end() ? found->second : none;
}

}  // namespace tvpolicy::policy
