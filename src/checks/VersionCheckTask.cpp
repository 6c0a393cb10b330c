#include <tvpolicy/checks/VersionCheckTask.h>

#include <utility>

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
    std::string found = foundVersion();
    response->passed = comparer.versionAtLeast(required_, delim_, found);
    recordComparison(std::move(found), required_, operation_);
    passed_ = response->passed;
    return response;
}
