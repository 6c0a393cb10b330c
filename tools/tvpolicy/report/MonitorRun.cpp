#include "report/MonitorRun.h"

#include <limits>
#include <memory>

#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskResponse.h>

#include "process/CommandHost.h"
#include "report/PolicyReport.h"

namespace tvpolicy::cli {

namespace {

std::string kindOf(Task& task)
{
    static const std::string suffix = "Task";
    std::string type = task.getType();
    if (type.size() > suffix.size() && type.compare(type.size() - suffix.size(), suffix.size(), suffix) == 0) {
        type.resize(type.size() - suffix.size());
    }
    return type;
}

std::string described(const MonitorCheck& check)
{
    std::string details = check.message;
    if (!check.cause.empty()) {
        details += (details.empty() ? "" : ": ") + check.cause;
    }
    return check.kind + (details.empty() ? std::string() : " (" + details + ")");
}

// The next run time one period from now; a period from a hostile document saturates the clock.
std::timespec nextRun(std::chrono::system_clock::time_point now, std::int64_t period)
{
    using namespace std::chrono;
    auto micros = duration_cast<microseconds>(now.time_since_epoch()).count();
    std::timespec next{};
    next.tv_sec = static_cast<std::time_t>(micros / 1000000);
    next.tv_nsec = static_cast<long>(micros % 1000000) * 1000;
    constexpr std::time_t latest = std::numeric_limits<std::time_t>::max();
    constexpr std::time_t earliest = std::numeric_limits<std::time_t>::min();
    if (period > 0) {
        next.tv_sec = next.tv_sec > latest - period ? latest : next.tv_sec + static_cast<std::time_t>(period);
    } else if (period < 0) {
        next.tv_sec = next.tv_sec < earliest - period ? earliest : next.tv_sec + static_cast<std::time_t>(period);
    }
    return next;
}

}  // namespace

MonitorRun performMonitor(com::torvane::policy::Monitor& monitor, const CommandHost* commands)
{
    MonitorRun run;
    run.id = monitor.getID();
    run.prohibit = monitor.getProhibit();
    bool allPassed = !monitor.getTasks().empty();
    for (Task* task : monitor.getTasks()) {
        const std::size_t timeoutsBefore = commands != nullptr ? commands->timeoutCount() : 0;
        std::unique_ptr<TaskResponse> response(task->perform());
        MonitorCheck check{kindOf(*task), response && response->passed, response ? response->message : "", ""};
        if (commands != nullptr && commands->timeoutCount() > timeoutsBefore) {
            check.cause = commands->timeouts().back().why;
        }
        run.checks.push_back(check);
        if (!check.passed) {
            allPassed = false;
            break;
        }
    }
    run.when = std::chrono::system_clock::now();
    monitor.getNextRunTime() = nextRun(run.when, monitor.getPeriod());
    run.compliant = allPassed != run.prohibit;
    return run;
}

std::string MonitorRun::statusXml() const
{
    return "<monitor><id>" + id + "</id><status>" + (compliant ? "true" : "false") + "</status></monitor>";
}

std::string MonitorRun::why() const
{
    if (compliant) {
        return "";
    }
    if (checks.empty()) {
        return "it holds no check";
    }
    if (!prohibit) {
        return "check " + described(checks.back()) + " failed";
    }
    std::string found;
    for (const MonitorCheck& check : checks) {
        found += (found.empty() ? "" : ", ") + described(check);
    }
    return "it is prohibited and every check passed: " + found;
}

nlohmann::ordered_json MonitorRun::toJson() const
{
    nlohmann::ordered_json checkList = nlohmann::ordered_json::array();
    for (const MonitorCheck& check : checks) {
        nlohmann::ordered_json entry = {{"type", check.kind}, {"passed", check.passed}, {"message", check.message}};
        if (!check.cause.empty()) {
            entry["cause"] = check.cause;
        }
        checkList.push_back(entry);
    }
    nlohmann::ordered_json line = {
        {"time", isoTime(when)}, {"id", id}, {"status", compliant}, {"prohibit", prohibit}, {"checks", checkList}};
    if (!compliant) {
        line["why"] = why();
    }
    return line;
}

}  // namespace tvpolicy::cli
