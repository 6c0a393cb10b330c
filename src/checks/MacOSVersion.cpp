#include "checks/MacOSVersion.h"

#include <vector>

#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/checks/DelimVersion.h>

namespace tvpolicy {

const char* const dscacheutilFlushCommand = "/usr/bin/dscacheutil -flushcache";
const char* const lookupdFlushCommand = "/usr/bin/lookupd -flushcache";

std::string comparableOSVersion(std::string version)
{
    std::string dot = ".";
    std::vector<std::string> words;
    split(version, dot, words);
    if (words.size() == 2) {
        version += ".0";
    }
    return version;
}

std::string macOSDnsFlushCommand(const std::string& version)
{
    const std::string comparable = comparableOSVersion(version);
    DelimVersion atLeast(DelimVersion::gte);
    if (atLeast.versionAtLeast("10.5.0", ".", comparable)) {
        return dscacheutilFlushCommand;
    }
    if (atLeast.versionAtLeast("10.4.0", ".", comparable)) {
        return lookupdFlushCommand;
    }
    return std::string();
}

}  // namespace tvpolicy
