#pragma once

#include <string>

namespace tvpolicy {

/// The OS version as the version checks compare it: a version of two words gets ".0" appended
/// ("10.7" is compared as "10.7.0"); any other is left as it is.
std::string comparableOSVersion(std::string version);

extern const char* const dscacheutilFlushCommand;  ///< "/usr/bin/dscacheutil -flushcache"
extern const char* const lookupdFlushCommand;      ///< "/usr/bin/lookupd -flushcache"

/// The command that flushes the DNS cache of macOS `version`: dscacheutil from 10.5 on,
/// lookupd on 10.4, none (empty) before 10.4 or for an unreadable version.
std::string macOSDnsFlushCommand(const std::string& version);

}  // namespace tvpolicy
