#pragma once

#include <list>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The `not` element: inverts the outcome of its one nested task (the last one nested wins).
/// A `not` without a nested task fails and logs why.
class TVPOLICY_API notTask : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;
    /// Deletes the term held so far and keeps this one.
    void addTerm(Task* term) override;
    /// A new list, owned by the caller, holding the one term (empty when there is none).
    std::list<Task*>* getTerms() override;
    ~notTask() override;

    static bool dummy;

private:
    friend class LogicTermRelease;
    friend class LogicEvaluation;
    friend class LogicFrame;
    Task* term = nullptr;
};
