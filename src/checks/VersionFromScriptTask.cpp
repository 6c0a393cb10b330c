#include <tvpolicy/checks/VersionFromScriptTask.h>

#include <tvpolicy/checks/CommandGate.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/TaskAttributes.h"

bool VersionFromScriptTask::dummy = TaskFactory::addTask("VersionFromScriptTask", &VersionFromScriptTask::create);
namespace {
const bool described =
    tvpolicy::TaskCatalog::describe("VersionFromScriptTask", tvpolicy::checks::versionCheckAttributes({"script"}));
}  // namespace

Task* VersionFromScriptTask::create() { return new VersionFromScriptTask; }

std::string VersionFromScriptTask::getType() { return "VersionFromScriptTask"; }

void VersionFromScriptTask::setOwnAttribute(const Attribute& attribute)
{
    tvpolicy::checks::assignAttribute(attribute, {{"script", &script_}});
}

TaskResponse* VersionFromScriptTask::perform()
{
    std::string refusal = script_.empty() ? std::string() : tvpolicy::commandRefusal(script_);
    if (refusal.empty()) {
        return VersionCheckTask::perform();
    }
    auto* response = new TaskResponse(-1);
    response->message = std::move(refusal);
    passed_ = false;
    return response;
}

std::string VersionFromScriptTask::foundVersion()
{
    std::string found = "0";
    if (!script_.empty()) {
        found = tvpolicy::currentHost().commandOutput(script_, 256);
    }
    return found;
}
