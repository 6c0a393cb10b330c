#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `false` element: always fails.
class TVPOLICY_API falseTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;

    static bool dummy;
};
