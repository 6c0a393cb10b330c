#include <tvpolicy/checks/MacOSXVersionTask.h>

#include <utility>

#include <tvpolicy/checks/DelimVersion.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/MacOSVersion.h"

bool MacOSXVersionTask::dummy = TaskFactory::addTask("MacOSXVersionTask", &MacOSXVersionTask::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe("MacOSXVersionTask", {"major", "minor", "micro", "operation"});
}  // namespace

Task* MacOSXVersionTask::create() { return new MacOSXVersionTask; }

void MacOSXVersionTask::setAttribute(Attribute* attribute)
{
    if (attribute == nullptr) {
        return;
    }
    const std::string& name = attribute->first;
    std::string* field = name == "major"       ? &major_
                         : name == "minor"     ? &minor_
                         : name == "micro"     ? &micro_
                         : name == "operation" ? &operation_
                                               : nullptr;
    if (field != nullptr) {
        *field = attribute->second;
    }
}

TaskResponse* MacOSXVersionTask::perform()
{
    auto* response = new TaskResponse(-1);
    std::string version = tvpolicy::comparableOSVersion(Machine::getOSVersion());
    DelimVersion comparison(operation_);
    std::string required = major_ + "." + minor_ + "." + micro_;
    response->passed = comparison.versionAtLeast(required, ".", version);
    recordComparison(std::move(version), std::move(required), operation_);
    passed_ = response->passed;
    return response;
}

std::string MacOSXVersionTask::getType() { return "MacOSXVersionTask"; }
