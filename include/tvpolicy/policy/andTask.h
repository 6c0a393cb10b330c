#pragma once

#include <list>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `and` element: passes when every nested task passes, stopping at the first failure.
/// With the attribute skip="true" a passing `and` marks its response as skipped.
class TVPOLICY_API andTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;
    void addTerm(Task* term) override;
    std::list<Task*>* getTerms() override;
    ~andTask() override;

    bool getSkip() const { return skip; }
    bool getSkipEmpty() const { return skipEmpty; }

    static bool dummy;

private:
    friend class LogicTermRelease;
    friend class LogicEvaluation;
    friend class LogicFrame;
    // The flags first: they fit in the room the base class leaves after its own, and a policy
    // holds many of these.
    bool skip = false;
    bool skipEmpty = false;  // accepted and stored only
    std::list<Task*> terms;
};
