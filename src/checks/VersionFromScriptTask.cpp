#include <tvpolicy/checks/VersionFromScriptTask.h>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/TaskAttributes.h"

bool VersionFromScriptTask::dummy = TaskFactory::addTask("VersionFromScriptTask", &VersionFromScriptTask::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe("VersionFromScriptTask", tvpolicy::checks::versionCheckAttributes({"script"}));
}  // namespace

Task* VersionFromScriptTask::create() { return new VersionFromScriptTask; }

std::string VersionFromScriptTask::getType() { return "VersionFromScriptTask"; }

void VersionFromScriptTask::setOwnAttribute(const Attribute& attribute)
{
    tvpolicy::checks::assignAttribute(attribute, {{"script", &script_}});
}

std::string VersionFromScriptTask::foundVersion()
{
    std::string found = "0";
    if (!script_.empty()) {
        found = tvpolicy::currentHost().commandOutput(script_, 256);
    }
    return found;
}
