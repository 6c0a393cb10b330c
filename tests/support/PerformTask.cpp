#include "support/PerformTask.h"

#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

namespace testing_support {

TaskRun performTask(const std::string& kind, std::vector<Task::Attribute> attributes)
{
    TaskRun run;
    run.task.reset(TaskFactory::createTask(kind));
    if (run.task == nullptr) {
        ADD_FAILURE() << kind << " is not registered";
        run.response = std::make_unique<TaskResponse>();
        return run;
    }
    for (Task::Attribute& attribute : attributes) {
        run.task->setAttribute(&attribute);
    }
    run.response.reset(run.task->perform());
    EXPECT_EQ(run.task->passed(), run.response->passed) << kind;
    EXPECT_EQ(run.task->getType(), kind);
    EXPECT_FALSE(run.response->skip) << kind;
    EXPECT_EQ(run.response->failedResponse, nullptr) << kind;
    return run;
}

bool performBareCheck(const std::string& kind, std::vector<Task::Attribute> attributes)
{
    TaskRun run = performTask(kind, std::move(attributes));
    EXPECT_EQ(run.response->code, -1) << kind;
    EXPECT_EQ(run.response->message, "") << kind;
    EXPECT_EQ(run.response->detail, "") << kind;
    return run.response->passed;
}

}  // namespace testing_support
