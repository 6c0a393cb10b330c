#include <tvpolicy/checks/VersionCheckTask.h>

#include <tvpolicy/checks/DelimVersion.h>

#include "checks/TaskAttributes.h"

void VersionCheckTask::setAttribute(Attribute* attribute)
{
    const std::string& name = attribute->first;
    if (name == "required" || name == "delim" || name == "operation") {
        tvpolicy::checks::assignAttribute(*attribute,
                                          {{"required", &required_}, {"delim", &delim_}, {"operation", &operation_}});
    } else {
        setOwnAttribute(*attribute);
    }
}

void VersionCheckTask::setOwnAttribute(const Attribute&) {}

TaskResponse* VersionCheckTask::perform()
{
    auto* response = new TaskResponse(-1);
    DelimVersion comparer(operation_);
    response->passed = comparer.versionAtLeast(required_, delim_, foundVersion());
    passed_ = response->passed;
    return response;
}
