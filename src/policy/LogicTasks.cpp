// The logic kinds: and, or, not, true, false and Validate. Their registrations run in the order
// of the definitions of their `dummy` members below.
#include <tvpolicy/policy/ValidateTask.h>
#include <tvpolicy/policy/andTask.h>
#include <tvpolicy/policy/falseTask.h>
#include <tvpolicy/policy/notTask.h>
#include <tvpolicy/policy/orTask.h>
#include <tvpolicy/policy/trueTask.h>

#include <iostream>
#include <utility>
#include <vector>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "base/LogLine.h"
#include "policy/LogicEvaluation.h"

bool andTask::dummy = TaskFactory::addTask("andTask", &andTask::create);
bool falseTask::dummy = TaskFactory::addTask("falseTask", &falseTask::create);
bool notTask::dummy = TaskFactory::addTask("notTask", &notTask::create);
bool orTask::dummy = TaskFactory::addTask("orTask", &orTask::create);
bool trueTask::dummy = TaskFactory::addTask("trueTask", &trueTask::create);
bool ValidateTask::dummy = TaskFactory::addTask("ValidateTask", &ValidateTask::create);

// What each logic kind reads from its element; the combinators without attributes read none.
namespace {
const bool described =
    tvpolicy::TaskCatalog::describe("andTask", {"skip", "skipEmpty"}) &&
    tvpolicy::TaskCatalog::describe("falseTask", {}) && tvpolicy::TaskCatalog::describe("notTask", {}) &&
    tvpolicy::TaskCatalog::describe("orTask", {}) && tvpolicy::TaskCatalog::describe("trueTask", {}) &&
    tvpolicy::TaskCatalog::describe("ValidateTask", {"status"});
}  // namespace

// Deletes composite trees without recursion: a tree nested as deep as a document allows must
// not exhaust the stack when it is destroyed. Each composite's terms are taken out of it before
// it is deleted, so its own destructor finds nothing left to delete.
class LogicTermRelease {
public:
    static void destroy(std::vector<Task*> pending)
    {
        while (!pending.empty()) {
            Task* task = pending.back();
            pending.pop_back();
            takeTerms(task, pending);
            delete task;
        }
    }

private:
    static void takeTerms(Task* task, std::vector<Task*>& pending)
    {
        if (auto* all = dynamic_cast<andTask*>(task)) {
            moveAll(all->terms, pending);
        } else if (auto* any = dynamic_cast<orTask*>(task)) {
            moveAll(any->terms, pending);
        } else if (auto* inverse = dynamic_cast<notTask*>(task)) {
            if (inverse->term != nullptr) {
                pending.push_back(std::exchange(inverse->term, nullptr));
            }
        }
    }

    static void moveAll(std::list<Task*>& terms, std::vector<Task*>& pending)
    {
        pending.insert(pending.end(), terms.begin(), terms.end());
        terms.clear();
    }
};

// andTask

Task* andTask::create() { return new andTask; }

void andTask::setAttribute(Attribute* attribute)
{
    if (attribute->second != "true") {
        return;
    }
    if (attribute->first == "skip") {
        skip = true;
    } else if (attribute->first == "skipEmpty") {
        skipEmpty = true;
    }
}

TaskResponse* andTask::perform() { return LogicEvaluation::perform(*this); }

std::string andTask::getType() { return "andTask"; }

void andTask::addTerm(Task* term) { terms.push_back(term); }

std::list<Task*>* andTask::getTerms() { return &terms; }

andTask::~andTask() { LogicTermRelease::destroy({terms.begin(), terms.end()}); }

// orTask

Task* orTask::create() { return new orTask; }

void orTask::setAttribute(Attribute*) {}

TaskResponse* orTask::perform() { return LogicEvaluation::perform(*this); }

std::string orTask::getType() { return "orTask"; }

void orTask::addTerm(Task* term) { terms.push_back(term); }

std::list<Task*>* orTask::getTerms() { return &terms; }

orTask::~orTask() { LogicTermRelease::destroy({terms.begin(), terms.end()}); }

// notTask

Task* notTask::create() { return new notTask; }

void notTask::setAttribute(Attribute*) {}

TaskResponse* notTask::perform()
{
    if (term == nullptr) {
        tvi::LogLine(std::cout) << "notTask: no nested check to invert; the not fails";
        auto* response = new TaskResponse;
        response->message = getType() + "/no nested check";
        passed_ = false;
        return response;
    }
    return LogicEvaluation::perform(*this);
}

std::string notTask::getType() { return "notTask"; }

void notTask::addTerm(Task* newTerm)
{
    if (term != nullptr) {
        LogicTermRelease::destroy({term});
    }
    term = newTerm;
}

std::list<Task*>* notTask::getTerms()
{
    auto* list = new std::list<Task*>;
    if (term != nullptr) {
        list->push_back(term);
    }
    return list;
}

notTask::~notTask()
{
    if (term != nullptr) {
        LogicTermRelease::destroy({term});
    }
}

// trueTask, falseTask

Task* trueTask::create() { return new trueTask; }

void trueTask::setAttributes(Attribute*, ...) {}

void trueTask::setAttribute(Attribute*) {}

TaskResponse* trueTask::perform()
{
    auto* response = new TaskResponse(-1);
    response->passed = passed_ = true;
    return response;
}

std::string trueTask::getType() { return "trueTask"; }

Task* falseTask::create() { return new falseTask; }

void falseTask::setAttribute(Attribute*) {}

TaskResponse* falseTask::perform()
{
    auto* response = new TaskResponse(-1);
    response->passed = passed_ = false;
    return response;
}

std::string falseTask::getType() { return "falseTask"; }

// ValidateTask

Task* ValidateTask::create() { return new ValidateTask; }

void ValidateTask::setAttribute(Attribute* attribute)
{
    if (attribute->first == "status") {
        status = attribute->second;
    }
}

TaskResponse* ValidateTask::perform()
{
    auto* response = new TaskResponse(0);
    response->passed = passed_ = (status == "true");
    response->message = passed_ ? "ValidateTask Enabled" : "ValidateTask disabled.";
    return response;
}

std::string ValidateTask::getType() { return "ValidateTask"; }
