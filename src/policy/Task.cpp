#include <tvpolicy/policy/Task.h>

#include <cstdarg>

void Task::setAttributes(Attribute* first, ...)
{
    if (first == nullptr) {
        return;
    }
    std::va_list rest;
    va_start(rest, first);
    for (Attribute* attribute = first; attribute != nullptr; attribute = va_arg(rest, Attribute*)) {
        setAttribute(attribute);
    }
    va_end(rest);
}

std::string Task::hashCode() { return std::string(); }

void Task::addTerm(Task*) {}

std::list<Task*>* Task::getTerms() { return nullptr; }

void Task::dump() {}

Task::~Task() = default;

bool Task::passed() { return passed_; }
