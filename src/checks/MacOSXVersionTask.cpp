#include <tvpolicy/checks/MacOSXVersionTask.h>

#include <tvpolicy/checks/DelimVersion.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/MacOSVersion.h"

bool MacOSXVersionTask::dummy = TaskFactory::addTask("MacOSXVersionTask", &MacOSXVersionTask::create);

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
    response->passed = comparison.versionAtLeast(major_ + "." + minor_ + "." + micro_, ".", version);
    passed_ = response->passed;
    return response;
}

std::string MacOSXVersionTask::getType() { return "MacOSXVersionTask"; }
