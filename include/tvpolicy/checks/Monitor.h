#pragma once

#include <cstdint>
#include <ctime>
#include <list>
#include <string>

#include <xercesc/dom/DOMNode.hpp>

#include <tvpolicy/checks/MonitorResponse.h>
#include <tvpolicy/export.h>

class Task;

namespace com::torvane::policy {

/// A named check repeated every `period` seconds outside any policy. A monitor document holds
/// any number of Monitor elements, at any depth; each one's child elements are tasks, named as
/// in a policy and nested the same way:
///
///     <monitors>
///       <Monitor id="p2p" period="60" prohibit="true"><ProcessExists procName="p2pd"/></Monitor>
///     </monitors>
///
/// The caller schedules: it runs a monitor (perform) once its next run time has come.
class TVPOLICY_API Monitor {
public:
    /// Reads the document element of `xml` (id, period and its tasks, not nested deeper) and
    /// makes the monitor due now.
    explicit Monitor(std::string xml);
    /// Reads a Monitor element (id, period, prohibit and its task trees) and makes it due now.
    explicit Monitor(xercesc::DOMNode* node);
    virtual ~Monitor();
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    void parse();
    void parse(xercesc::DOMNode* node);

    /// Performs the tasks in order up to the first that fails, moves the next run time to now
    /// plus the period, and reports the status (the caller owns the response).
    MonitorResponse* perform();

    std::string getID() const { return id; }
    /// When the monitor is due next, in UTC: seconds and nanoseconds since 1970-01-01.
    std::timespec& getNextRunTime() { return nextRunTime; }
    int getPriority() const { return priority; }
    /// Appends a task; the monitor owns it from now on.
    void addTask(Task* task);

    std::int64_t getPeriod() const { return period; }
    bool getProhibit() const { return prohibit; }
    const std::list<Task*>& getTasks() const { return tasks; }

    /// Every Monitor element of `xml`, in document order. The caller owns the list and the
    /// monitors; a text that is no XML gives an empty list.
    static std::list<Monitor*>* parseMonitors(std::string xml);

private:
    void readAttributes(xercesc::DOMNode* node, bool withProhibit);
    void readTasks(xercesc::DOMNode* node, bool nested);

    std::list<Task*> tasks;
    std::int32_t priority = 0;
    std::int64_t period = 0;
    std::string xml;
    std::string id;
    std::timespec nextRunTime{};
    bool prohibit = false;
};

/// Builds the nested terms of `parent` from the child elements of `node`, recursively.
TVPOLICY_API void parseSubTasks(xercesc::DOMNode* node, Task* parent);

}  // namespace com::torvane::policy
