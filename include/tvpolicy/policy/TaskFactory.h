#pragma once

#include <map>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/TaskMap.h>

class Task;
class TaskResponse;

/// The process-wide registry of task kinds. Every kind registers itself while the library is
/// loaded, from a static member of its own:
///
///     // FooTask.h
///     class FooTask : public Task { ... static Task* create(); static bool dummy; };
///     // FooTask.cpp
///     bool FooTask::dummy = TaskFactory::addTask("FooTask", &FooTask::create);
///
/// The registered name is the policy element name followed by "Task".
class TVPOLICY_API TaskFactory {
public:
    TaskFactory() = delete;

    /// Registers a kind; false when the registry already holds 100 kinds.
    static bool addTask(std::string name, TaskMap::CreateFunction create);
    /// The registry, created on first use.
    static TaskMap& getMap();
    /// A new task of the named kind (owned by the caller), or null for an unknown name.
    static Task* createTask(std::string name);
    /// The result cache is switched off: always null.
    static TaskResponse* getCachedResult(std::string key);
    /// The result cache is switched off: does nothing.
    static void addCachedResult(std::string key, TaskResponse* response);
    /// Writes the registered names to standard output.
    static void dump();

private:
    static std::map<std::string, TaskResponse*> cachedResults;
};
