#pragma once

#include <string>

namespace tvpolicy::policy {

/// The name a section is announced by: its item key without the three-character ordinal.
inline std::string announcedName(const std::string& key) { return key.size() > 3 ? key.substr(3) : std::string(); }

}  // namespace tvpolicy::policy
