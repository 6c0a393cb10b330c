#pragma once

#include <list>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `or` element: passes when a nested task passes, stopping at the first that does. An
/// `or` without nested tasks fails.
class TVPOLICY_API orTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;
    void addTerm(Task* term) override;
    std::list<Task*>* getTerms() override;
    ~orTask() override;

    static bool dummy;

private:
    friend class LogicTermRelease;
    friend class LogicEvaluation;
    friend class LogicFrame;
    std::list<Task*> terms;
};
