#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The policy element ProcessExists: passes when a process of the name given by the attribute
/// "procName" runs (see com::torvane::api::ProcessList for how names match).
class TVPOLICY_API ProcessExistsTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    /// Passed with "Process Running", or failed with "Process Not Running"; the detail is
    /// "Task performed properly." either way.
    TaskResponse* perform() override;
    std::string getType() override;

private:
    static bool whatever;
    std::string procName_;
};
