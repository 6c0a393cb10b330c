#pragma once

#include <string>

namespace tvpolicy {

/// The user database's name for the user `uid`; empty when it has none.
std::string userNameOf(unsigned long uid);
/// The group database's name for the group `gid`; empty when it has none.
std::string groupNameOf(unsigned long gid);

}  // namespace tvpolicy
