// tvpolicy monitor FILE [--once] [--count N] [--json] [--command-timeout S]: runs the monitors of
// a document as the agent does, each when its next run time has come, printing every status XML
// as one line (and why a monitor reported false on standard error), or one JSON object per run.
#include <chrono>
#include <ctime>
#include <exception>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/host/HostProbe.h>

#include "commands/Command.h"
#include "io/StopSignals.h"
#include "policy/DocumentFile.h"
#include "policy/UnreadElements.h"
#include "process/CommandHost.h"
#include "report/MonitorRun.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::policy::Monitor;
using MonitorList = std::vector<std::unique_ptr<Monitor>>;

MonitorList takeMonitors(std::list<Monitor*>* parsed)
{
    std::unique_ptr<std::list<Monitor*>> owned(parsed);
    MonitorList monitors;
    for (Monitor* monitor : *owned) {
        monitors.emplace_back(monitor);
    }
    return monitors;
}

/// Runs `monitor`, prints its status line (and why it reported false) or its JSON line, and
/// tells whether it reported "true". A run that a stop cut short (its command was ended) is not
/// reported: what it found is not what the monitor would have found.
bool runAndPrint(Monitor& monitor, Console& console, bool json, const CommandHost& commands,
                 StopSignals* stop = nullptr)
{
    MonitorRun run = performMonitor(monitor, &commands);
    if (stop != nullptr && stop->stopRequested()) {
        console.err() << "tvpolicy monitor: '" << run.id << "' was cut short by a stop; its run is not reported\n";
        return true;
    }
    if (json) {
        console.out() << run.toJson().dump() << '\n' << std::flush;
    } else {
        console.out() << run.statusXml() << '\n' << std::flush;
        if (!run.compliant) {
            console.err() << "tvpolicy monitor: '" << run.id << "' reported false: " << run.why() << '\n';
        }
    }
    return run.compliant;
}

bool notAfter(const std::timespec& a, const std::timespec& b)
{
    return a.tv_sec < b.tv_sec || (a.tv_sec == b.tv_sec && a.tv_nsec <= b.tv_nsec);
}

// SIGINT and SIGTERM end the program as they do by default; during a command, they first end
// its process group.
int runOnce(MonitorList& monitors, Console& console, bool json, std::chrono::milliseconds timeout)
{
    CommandGroups groups(std::chrono::seconds(1), timeout);
    CommandHost commands(tvpolicy::systemHost(), groups, CommandHost::Stops::endProgram);
    tvpolicy::ScopedHost scope(commands);
    bool allTrue = true;
    for (auto& monitor : monitors) {
        allTrue = runAndPrint(*monitor, console, json, commands) && allTrue;
    }
    return allTrue ? exitPassed : exitFailed;
}

// Runs every due monitor in document order, then sleeps until the next one is due. A monitor
// without a positive period runs once only. Stops after `count` runs (0: no limit), when no
// monitor is left to run, or on SIGINT/SIGTERM: between two runs, or during a check's command,
// which is then ended with its process group.
int runScheduled(MonitorList& monitors, long count, bool json, std::chrono::milliseconds timeout, Console& console)
{
    StopSignals stop;
    CommandGroups groups(std::chrono::seconds(1), timeout);
    CommandHost commands(tvpolicy::systemHost(), groups, CommandHost::Stops::endCommand, stop.wakeDescriptor());
    tvpolicy::ScopedHost scope(commands);
    std::vector<Monitor*> schedule;
    for (auto& monitor : monitors) {
        schedule.push_back(monitor.get());
    }
    long runs = 0;
    bool allTrue = true;
    // Bounded by --count, the run ends by the statuses, as --once does; stopped by a signal,
    // it ends as asked.
    auto ending = [&] { return count > 0 && !allTrue ? exitFailed : exitPassed; };
    while (!schedule.empty()) {
        std::timespec now{};
        ::clock_gettime(CLOCK_REALTIME, &now);
        for (auto it = schedule.begin(); it != schedule.end();) {
            Monitor* monitor = *it;
            if (!notAfter(monitor->getNextRunTime(), now)) {
                ++it;
                continue;
            }
            allTrue = runAndPrint(*monitor, console, json, commands, &stop) && allTrue;
            if ((count > 0 && ++runs >= count) || stop.stopRequested()) {
                return ending();
            }
            it = monitor->getPeriod() > 0 ? it + 1 : schedule.erase(it);
        }
        if (schedule.empty()) {
            break;
        }
        std::timespec next = schedule.front()->getNextRunTime();
        for (Monitor* monitor : schedule) {
            if (notAfter(monitor->getNextRunTime(), next)) {
                next = monitor->getNextRunTime();
            }
        }
        if (stop.waitUntil(next)) {
            break;
        }
    }
    return ending();
}

CommandAction setupMonitor(CLI::App& app)
{
    struct Options {
        std::string file;
        bool once = false;
        bool strict = false;
        bool json = false;
        long count = 0;
        double commandTimeout = 60;
    };
    auto options = std::make_shared<Options>();
    app.add_option("FILE", options->file, "A document of Monitor elements, or - for standard input")->required();
    auto* once = app.add_flag("--once", options->once, "Run every monitor once; exit 0 only when all report true");
    const CLI::Validator atLeastOne(
        [](std::string& value) {
            try {
                std::size_t used = 0;
                long number = std::stol(value, &used);
                return used == value.size() && number >= 1 ? std::string() : std::string("must be at least 1");
            } catch (const std::exception&) {
                return std::string("must be at least 1");
            }
        },
        "N");
    app.add_flag("--strict", options->strict,
                 "Refuse (exit 2) a document that holds elements or attributes the monitors would not evaluate");
    app.add_option("--count", options->count,
                   "Stop after N runs in all (N at least 1); exit 0 only when all reported true")
        ->check(atLeastOne)
        ->excludes(once);
    app.add_flag("--json", options->json,
                 "Print one JSON object per run (time, id, status, each check performed and why a false status)");
    addCommandTimeout(app, options->commandTimeout);

    return [options](Console& console) -> int {
        std::optional<std::string> text = loadXmlDocument(console, "monitor", options->file);
        if (!text) {
            return exitUsage;
        }
        MonitorScan scan = scanMonitors(*text);
        for (const Notice& notice : scan.notices) {
            if (notice.kind != "no-monitors") {
                console.err() << "tvpolicy monitor: warning: " << describe(notice) << '\n';
            }
        }
        if (options->strict && !scan.notices.empty()) {
            console.err() << "tvpolicy monitor: --strict: the document holds what would not be evaluated; no "
                             "monitor was run\n";
            return exitUsage;
        }
        MonitorList monitors = takeMonitors(Monitor::parseMonitors(*text));
        if (monitors.empty()) {
            console.err() << "tvpolicy monitor: " << options->file << " holds no Monitor element\n";
            return exitUsage;
        }
        const std::chrono::milliseconds timeout = commandTimeout(options->commandTimeout);
        return options->once ? runOnce(monitors, console, options->json, timeout)
                             : runScheduled(monitors, options->count, options->json, timeout, console);
    };
}

const bool registered =
    registerCommand({"monitor", "Run the monitors of a document, each when it is due, printing each status XML line",
                     30, &setupMonitor});

}  // namespace
}  // namespace tvpolicy::cli
