#include <tvpolicy/checks/ProcessList.h>

#include <iostream>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/HostProbe.h>
#include "base/LogLine.h"
#include "host/ProcessNames.h"

namespace com::torvane::api {

bool ProcessList::isProcessRunning(std::string name) { return tvpolicy::currentHost().runsProcessNamed(name); }

void ProcessList::dump()
{
    for (const auto& process : tvpolicy::currentHost().processTable()) {
        tvi::LogLine(std::clog) << "old: " << process.shortName;
        if (process.executablePath) {
            tvi::LogLine(std::clog) << "new: " << tvpolicy::host::executableName(*process.executablePath);
        }
    }
}

}  // namespace com::torvane::api
