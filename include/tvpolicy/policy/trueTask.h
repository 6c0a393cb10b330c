#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `true` element: always passes.
class TVPOLICY_API trueTask : public Task {
public:
    static Task* create();

    /// Ignores its arguments entirely.
    void setAttributes(Attribute* first, ...) override;
    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;

    static bool dummy;
};
