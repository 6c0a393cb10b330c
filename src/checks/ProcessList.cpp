#include <tvpolicy/checks/ProcessList.h>

#include <iostream>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/base/Timestamp.h>

namespace com::torvane::api {

namespace {

// The last component of `path`, as basename(3) gives it: trailing slashes do not count, and a
// path made of slashes only is "/".
std::string baseName(const std::string& path)
{
    std::size_t end = path.find_last_not_of('/');
    if (end == std::string::npos) {
        return path.empty() ? std::string(".") : std::string("/");
    }
    std::size_t slash = path.rfind('/', end);
    std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(start, end + 1 - start);
}

}  // namespace

bool ProcessList::isProcessRunning(std::string name)
{
    for (const auto& process : tvpolicy::currentHost().processTable()) {
        if (process.executablePath &&
            (name == baseName(*process.executablePath) || name == process.shortName)) {
            return true;
        }
    }
    return false;
}

void ProcessList::dump()
{
    for (const auto& process : tvpolicy::currentHost().processTable()) {
        tvi::tslog(std::clog) << "old: " << process.shortName << std::endl;
        if (process.executablePath) {
            tvi::tslog(std::clog) << "new: " << baseName(*process.executablePath) << std::endl;
        }
    }
}

}  // namespace com::torvane::api
