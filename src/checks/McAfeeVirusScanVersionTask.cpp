#include <tvpolicy/checks/McAfeeVirusScanVersionTask.h>

#include <algorithm>
#include <iostream>
#include <vector>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "base/LogLine.h"
#include "checks/DirectoryStream.h"
#include "checks/TaskAttributes.h"

bool McAfeeVirusScanVersionTask::dummy =
    TaskFactory::addTask("McAfeeVirusScanVersionTask", &McAfeeVirusScanVersionTask::create);
namespace {
const bool described =
    tvpolicy::TaskCatalog::describe("McAfeeVirusScanVersionTask", tvpolicy::checks::versionCheckAttributes({}));
}  // namespace

Task* McAfeeVirusScanVersionTask::create() { return new McAfeeVirusScanVersionTask; }

std::string McAfeeVirusScanVersionTask::getType() { return "McAfeeVirusScanVersionTask"; }

std::string McAfeeVirusScanVersionTask::foundVersion()
{
    std::vector<std::string> candidates{"0"};
    int error = 0;
    tvpolicy::fs::DirectoryStream dats =
        tvpolicy::fs::DirectoryStream::open(tvpolicy::currentHost().systemPath("/usr/local/vscanx/dats"), error);
    if (dats.valid()) {
        const char* name = nullptr;
        tvpolicy::fs::EntryKind kind;
        while (dats.next(name, kind, error)) {
            if (name[0] >= '0' && name[0] <= '9') {
                candidates.emplace_back(name);
            }
        }
    }
    // Plain text order on purpose: the newest is the last name, not the largest number.
    std::sort(candidates.begin(), candidates.end());
    tvi::LogLine(std::cerr) << "Version = " << candidates.front();

    return candidates.back();
}
