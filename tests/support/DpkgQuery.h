#pragma once

#include <map>
#include <string>

namespace testing_support {

/// The packages dpkg-query lists as installed (all but those left with their configuration
/// files only), by the name it shows, with their versions. Empty when dpkg-query fails.
std::map<std::string, std::string> installedByDpkgQuery();

}  // namespace testing_support
