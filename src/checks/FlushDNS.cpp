#include <tvpolicy/checks/FlushDNS.h>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/MacOSVersion.h"

bool FlushDNS::dummy = TaskFactory::addTask("FlushDNSTask", &FlushDNS::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe("FlushDNSTask", {});
}  // namespace

Task* FlushDNS::create() { return new FlushDNS; }

void FlushDNS::setAttribute(Attribute*) {}

TaskResponse* FlushDNS::perform()
{
    auto* response = new TaskResponse(-1);
    tvpolicy::HostProbe& host = tvpolicy::currentHost();
    const std::string command = host.dnsFlushCommand();
    response->passed = !command.empty();
    if (response->passed) {
        host.runShellCommand(command);  // issued is enough: its status does not count
    }
    passed_ = response->passed;
    return response;
}

std::string FlushDNS::getType() { return "FlushDNS"; }

int FlushDNS::flushDNSdscacheutil()
{
    return tvpolicy::currentHost().runShellCommand(tvpolicy::dscacheutilFlushCommand);
}

int FlushDNS::flushDNSlookupd() { return tvpolicy::currentHost().runShellCommand(tvpolicy::lookupdFlushCommand); }
