#pragma once

#include <memory>
#include <string>
#include <vector>

#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskResponse.h>

namespace testing_support {

struct TaskRun {
    std::unique_ptr<Task> task;
    std::unique_ptr<TaskResponse> response;
};

/// Creates a task of the registered `kind` through the factory, gives it `attributes` one by one
/// and performs it once. Checks what every kind must do: the task exists, its type is its
/// registered name, and it keeps the outcome it returned.
TaskRun performTask(const std::string& kind, std::vector<Task::Attribute> attributes);

/// performTask for the kinds that answer with a bare outcome (`code` -1, no message, no
/// detail), which it checks; returns the outcome.
bool performBareCheck(const std::string& kind, std::vector<Task::Attribute> attributes);

}  // namespace testing_support
