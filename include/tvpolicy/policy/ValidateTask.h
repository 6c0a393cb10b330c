#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `Validate` element: passes when its `status` attribute is exactly "true".
class TVPOLICY_API ValidateTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;

    const std::string& getStatus() const { return status; }

    static bool dummy;

private:
    std::string status;
};
