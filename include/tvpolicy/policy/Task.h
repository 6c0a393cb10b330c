#pragma once

#include <list>
#include <string>
#include <utility>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/TaskResponse.h>

/// One check of a policy, created by name through TaskFactory, configured from the
/// attributes of one XML element and performed once per evaluation.
///
/// The order of the virtual operations is part of the interface and must not change.
class TVPOLICY_API Task {
public:
    using Attribute = std::pair<std::string, std::string>;

    Task() = default;
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;

    /// Calls setAttribute for each pair of a null-terminated list; a null first pair does nothing.
    virtual void setAttributes(Attribute* first, ...);
    /// Applies one (name, value) attribute; unknown names are ignored.
    virtual void setAttribute(Attribute* attribute) = 0;
    /// Runs the check; the caller owns the new response.
    virtual TaskResponse* perform() = 0;
    /// The registered name of the kind (used in logs and composite messages).
    virtual std::string getType() = 0;
    /// Cache key of the task; empty for every built-in kind.
    virtual std::string hashCode();
    /// Adds a nested task; composites take ownership, other kinds ignore it.
    virtual void addTerm(Task* term);
    /// The nested tasks of a composite, or null.
    virtual std::list<Task*>* getTerms();
    /// Writes a description of the task; nothing by default.
    virtual void dump();
    virtual ~Task();
    /// The outcome of the last perform.
    virtual bool passed();

protected:
    bool passed_ = false;
};
