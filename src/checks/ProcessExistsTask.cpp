#include <tvpolicy/checks/ProcessExistsTask.h>

#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

bool ProcessExistsTask::whatever = TaskFactory::addTask("ProcessExistsTask", &ProcessExistsTask::create);
namespace {
const bool described = tvpolicy::TaskCatalog::describe("ProcessExistsTask", {"procName"});
}  // namespace

Task* ProcessExistsTask::create() { return new ProcessExistsTask; }

void ProcessExistsTask::setAttribute(Attribute* attribute)
{
    if (attribute != nullptr && attribute->first == "procName") {
        procName_ = attribute->second;
    }
}

TaskResponse* ProcessExistsTask::perform()
{
    auto* response = new TaskResponse(0);
    response->passed = com::torvane::api::ProcessList().isProcessRunning(procName_);
    response->message = response->passed ? "Process Running" : "Process Not Running";
    response->detail = "Task performed properly.";
    passed_ = response->passed;
    return response;
}

std::string ProcessExistsTask::getType() { return "ProcessExistsTask"; }
