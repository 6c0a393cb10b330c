#include <tvpolicy/policy/TaskFactory.h>

#include <atomic>
#include <cstdio>
#include <utility>

#include <tvpolicy/policy/Task.h>

std::map<std::string, TaskResponse*> TaskFactory::cachedResults;

TaskMap& TaskFactory::getMap()
{
    static TaskMap map;
    return map;
}

bool TaskFactory::addTask(std::string name, TaskMap::CreateFunction create)
{
    return getMap().add(std::move(name), create);
}

Task* TaskFactory::createTask(std::string name)
{
    // Policies and monitors may be parsed on several threads at once.
    static std::atomic<unsigned long> count{0};
    count.fetch_add(1, std::memory_order_relaxed);
    TaskMap::CreateFunction create = getMap().get(std::move(name));
    return create != nullptr ? create() : nullptr;
}

TaskResponse* TaskFactory::getCachedResult(std::string) { return nullptr; }

void TaskFactory::addCachedResult(std::string, TaskResponse*) {}

void TaskFactory::dump()
{
    const TaskMap& map = getMap();
    std::printf("Tasks Registered with TaskFactory:\n");
    for (std::size_t i = 0; i < map.size(); ++i) {
        std::printf("\t%s", map.entry(i).name.c_str());
        std::printf("\n");
    }
    std::fflush(stdout);
}
