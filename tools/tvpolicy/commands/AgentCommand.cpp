// tvpolicy agent: proves this computer's compliance to an access-control server and keeps it
// proven: fetches the server's policy, runs it, reports the results, and starts again on a
// timer, when an address changes and when the computer wakes up.
#include <sys/stat.h>
#include <unistd.h>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <initializer_list>
#include <iostream>
#include <list>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/checks/CommandGate.h>
#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/checks/MonitorResponse.h>
#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/MACChangeNotifier.h>
#include <tvpolicy/host/PowerChangeNotifier.h>

#include "agent/AddressRenewal.h"
#include "agent/AgentCycle.h"
#include "agent/AgentRuntime.h"
#include "agent/AgentSettings.h"
#include "agent/AgentState.h"
#include "agent/BlockingCalls.h"
#include "agent/Discovery.h"
#include "agent/ServiceManager.h"
#include "commands/Command.h"
#include "process/CommandHost.h"
#include "report/PolicyReport.h"

namespace tvpolicy::cli {

namespace {

using namespace agent;
using Json = nlohmann::ordered_json;
using std::chrono::milliseconds;

constexpr int exitUnreached = 3;
constexpr int exitRefused = 4;
constexpr milliseconds firstBackoff{5000};
constexpr milliseconds longestBackoff{15 * 60 * 1000};
constexpr milliseconds burstWindow{2000};
constexpr milliseconds burstSettle{500};
// After a renewal the addresses are recorded once no change has come for renewalQuiet (at most
// renewalLongest); the changes it causes start no cycle of their own.
constexpr milliseconds renewalQuiet{1500};
constexpr milliseconds renewalLongest{10000};

struct AgentOptions {
    std::string configPath = "/etc/tvpolicy/agent.toml";
    bool configGiven = false;
    std::optional<std::string> server, discover, domain, stateDir, interval, cacert;
    bool allowHttp = false;
    bool once = false;
    bool json = false;
    bool status = false;
};

// The settings of the file with the command line's over them; a failure when they cannot be
// used.
Result<AgentSettings> settle(const AgentOptions& options)
{
    Result<AgentSettings> loaded = loadSettings(options.configPath, options.configGiven);
    if (!loaded) {
        return loaded;
    }
    AgentSettings& settings = *loaded;
    using Override = std::pair<const std::optional<std::string>*, std::string*>;
    for (auto [given, target] : std::initializer_list<Override>{{&options.server, &settings.server},
                                                                {&options.discover, &settings.discover},
                                                                {&options.domain, &settings.domain},
                                                                {&options.stateDir, &settings.stateDir},
                                                                {&options.cacert, &settings.cacert}}) {
        if (*given) {
            *target = **given;
        }
    }
    if (options.interval) {
        auto interval = parseDuration(*options.interval);
        if (!interval) {
            return Failure{"--interval takes a duration such as 4h, 15m or 30s, not '" + *options.interval + "'"};
        }
        settings.interval = *interval;
    }
    settings.allowHttp = settings.allowHttp || options.allowHttp;
    if (!settings.server.empty()) {
        bool https = settings.server.rfind("https://", 0) == 0;
        bool http = settings.server.rfind("http://", 0) == 0;
        if (!https && !(http && settings.allowHttp)) {
            return Failure{http ? "the server " + settings.server +
                                      " is plain http: allow it with allow_http = true or --allow-http"
                                : "the server must be an https:// address, not '" + settings.server + "'"};
        }
        if (settings.server.back() != '/') {
            settings.server += '/';
        }
    }
    return loaded;
}

void applyTrust(const AgentSettings& settings, const std::atomic<bool>& stop)
{
    com::torvane::HttpBounds bounds;
    bounds.enabled = true;
    bounds.protocols = settings.allowHttp ? "http,https" : "https";
    bounds.caFile = settings.cacert;
    bounds.cancel = &stop;
    com::torvane::BasicHttpRequest::setBounds(bounds);
    tvpolicy::setCommandGate([rule = settings.scripts](const std::string& command) { return rule.refusal(command); });
}

const char* outcomeWord(Outcome outcome)
{
    switch (outcome) {
    case Outcome::passed: return "passed";
    case Outcome::failed: return "failed";
    case Outcome::nothingToDo: return "nothing-to-do";
    case Outcome::unreached: return "unreached";
    case Outcome::authFailure: return "refused";
    case Outcome::stopped: return "stopped";
    case Outcome::cycleFailed: break;
    }
    return "cycle-failed";
}

int exitFor(Outcome outcome)
{
    switch (outcome) {
    case Outcome::passed:
    case Outcome::nothingToDo: return exitPassed;
    case Outcome::failed: return exitFailed;
    case Outcome::authFailure: return exitRefused;
    default: return exitUnreached;
    }
}

class Agent {
public:
    Agent(const AgentOptions& options, Console& console) : options_(options), console_(console) {}

    int run();

private:
    Result<void> reload();
    CycleReport cycle(const std::string& reason);
    std::string discover(CycleReport& outcome);
    void keepVerdict(const Json& verdict);
    Json renewAfterPass(CycleReport& outcome);
    [[noreturn]] void abandon(const std::string& what);
    Wake nextWake(milliseconds timeout);
    void report(const std::string& reason, const std::string& server, const CycleReport& outcome,
                std::chrono::steady_clock::time_point started);
    milliseconds jittered(milliseconds period);
    void startWatches();
    void stopWatches();
    void fetchMonitors(const std::string& base);
    void runDueMonitors();
    milliseconds untilNextMonitor() const;

    // The cycle under way, for the line that tells it was stopped.
    struct UnderWay {
        std::string reason;
        std::string base;
        std::string scan;
        std::chrono::steady_clock::time_point started;
        const AgentCycle* exchange = nullptr;
    };

    const AgentOptions& options_;
    Console& console_;
    AgentSettings settings_;
    std::unique_ptr<AgentState> state_;
    AgentSignals signals_;
    CommandGroups commands_;
    BlockingCalls calls_{signals_, commands_, [this](const std::string& what) { abandon(what); }};
    std::optional<UnderWay> underWay_;
    std::mt19937 random_{std::random_device{}()};
    std::atomic<const char*> eventReason_{"event"};
    bool reloadCarried_ = false;  // a SIGHUP that came while the agent waited for something else

    com::torvane::api::IPChangeNotifier ip_;
    std::unique_ptr<com::torvane::api::MACChangeNotifier> mac_;
    tvi::PowerChangeNotifier power_;
    bool powerEnabled_ = false;
    std::vector<std::thread> watches_;

    using Monitor = com::torvane::policy::Monitor;
    std::vector<std::unique_ptr<Monitor>> monitors_;
    std::string monitorBase_;
    std::string lastBase_;  // the server of the last cycle
};

// The server's monitor document: 404 means it has none; another failure keeps the ones known.
void Agent::fetchMonitors(const std::string& base)
{
    using com::torvane::BasicHttpRequest;
    com::torvane::HttpTransfer answer =
        BasicHttpRequest::transfer(com::torvane::HttpOperation::get, base + "agent/monitors", "", "", "");
    if (answer.completed && answer.responseCode == 404) {
        monitors_.clear();
    } else if (answer.completed && answer.responseCode == 200) {
        monitors_.clear();
        std::unique_ptr<std::list<Monitor*>> parsed(Monitor::parseMonitors(answer.contents));
        for (Monitor* monitor : *parsed) {
            monitors_.emplace_back(monitor);
        }
    }
    monitorBase_ = base;
}

// Every monitor that is due runs and its status goes to the server; one without a period runs once.
void Agent::runDueMonitors()
{
    std::timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    for (auto it = monitors_.begin(); it != monitors_.end() && !signals_.stopFlag();) {
        const std::timespec& due = (*it)->getNextRunTime();
        if (due.tv_sec > now.tv_sec || (due.tv_sec == now.tv_sec && due.tv_nsec > now.tv_nsec)) {
            ++it;
            continue;
        }
        Monitor& monitor = **it;
        auto response = calls_.run("a monitor", [&monitor] {
            return std::unique_ptr<com::torvane::policy::MonitorResponse>(monitor.perform());
        });
        if (!response) {
            return;
        }
        com::torvane::BasicHttpRequest::transfer(com::torvane::HttpOperation::post, monitorBase_ + "agent/monitor",
                                                 (*response)->getXML(), "", "", "application/xml");
        it = (*it)->getPeriod() > 0 ? it + 1 : monitors_.erase(it);
    }
}

milliseconds Agent::untilNextMonitor() const
{
    milliseconds soonest(3600000);
    std::timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    for (const auto& monitor : monitors_) {
        const std::timespec& due = monitor->getNextRunTime();
        long long left =
            (static_cast<long long>(due.tv_sec) - now.tv_sec) * 1000 + (due.tv_nsec - now.tv_nsec) / 1000000;
        soonest = std::min(soonest, milliseconds(std::max(left, 0LL)));
    }
    return soonest;
}

Result<void> Agent::reload()
{
    Result<AgentSettings> settled = settle(options_);
    if (!settled) {
        return Failure{settled.error()};
    }
    settings_ = std::move(settled).value();
    state_ = std::make_unique<AgentState>(settings_.stateDir);
    if (Result<void> prepared = state_->prepare(); !prepared) {
        return prepared;
    }
    applyTrust(settings_, signals_.stopFlag());
    return {};
}

CycleReport Agent::cycle(const std::string& reason)
{
    const auto started = std::chrono::steady_clock::now();
    underWay_ = UnderWay{reason, settings_.server, "", started};
    CycleReport outcome;
    std::string base = settings_.server.empty() ? discover(outcome) : settings_.server;
    underWay_->base = base;
    lastBase_ = base;
    if (!base.empty()) {
        AgentCycle exchange(settings_, *state_, console_, calls_);
        underWay_->exchange = &exchange;
        outcome = exchange.run(base);
        underWay_->exchange = nullptr;
        underWay_->scan = outcome.scan;
    }
    if (signals_.stopFlag() && (outcome.outcome == Outcome::unreached || outcome.outcome == Outcome::cycleFailed)) {
        outcome = CycleReport{Outcome::stopped, outcome.scan, "stopped before the cycle ended"};
    }
    if (outcome.outcome == Outcome::passed || outcome.outcome == Outcome::failed) {
        // Kept before the renewal, which a stop may cut short: the verdict stands either way.
        Json verdict = {{"verdict", outcomeWord(outcome.outcome)},
                        {"when", isoTime(std::chrono::system_clock::now())},
                        {"server", base},
                        {"scan", outcome.scan}};
        keepVerdict(verdict);
        Json addresses = renewAfterPass(outcome);
        if (!addresses.is_null()) {
            verdict["addresses"] = addresses;
            keepVerdict(verdict);
        }
    }
    report(reason, base, outcome, started);
    underWay_.reset();
    return outcome;
}

// The server's base address from DNS; empty, with `outcome` saying why, when none was found.
std::string Agent::discover(CycleReport& outcome)
{
    const char* lookingUp = "the DNS discovery";
    std::optional<Result<std::string>> found = calls_.run(lookingUp, [this] {
        return discoverServer(settings_.discover.empty() ? "tvpolicy" : settings_.discover, settings_.domain,
                              settings_.allowHttp, signals_.stopFlag());
    });
    if (!found) {
        outcome = stoppedDuring(lookingUp);
        return std::string();
    }
    if (!*found) {
        outcome = CycleReport{Outcome::unreached, "", found->error()};
        return std::string();
    }
    return **found;
}

void Agent::keepVerdict(const Json& verdict)
{
    if (Result<void> saved = state_->saveVerdict(verdict); !saved) {
        console_.err() << "tvpolicy agent: the verdict was not kept: " << saved.error() << '\n';
    }
}

// The renewal a passed policy asks for, then the addresses of the renewed interfaces once they
// have settled (null when there was nothing to renew).
Json Agent::renewAfterPass(CycleReport& outcome)
{
    if (!outcome.renewAddress || signals_.stopFlag()) {
        return Json();
    }
    const char* renewing = "the address renewal";
    std::optional<std::vector<std::string>> renewed = calls_.run(renewing, renewAddresses);
    if (!renewed) {
        outcome = stoppedDuring(renewing, outcome.scan);
        return Json();
    }
    const std::vector<std::string>& asked = *renewed;
    if (asked.empty()) {
        outcome.message = "no interface's address could be renewed";
        return Json();
    }
    const auto deadline = std::chrono::steady_clock::now() + renewalLongest;
    for (;;) {
        auto left = std::chrono::duration_cast<milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            break;
        }
        Wake wake = signals_.wait(std::min(renewalQuiet, left));
        reloadCarried_ = reloadCarried_ || wake == Wake::reload;
        if (wake == Wake::timeout || wake == Wake::stop) {
            break;
        }
    }
    std::string names;
    for (const std::string& name : asked) {
        names += (names.empty() ? "" : ", ") + name;
    }
    outcome.message = "renewed the address of " + names;
    return addressesOf(asked);
}

// A stop came during a call that did not return in time. The state directory is whole (only
// this thread writes it, and it is waiting here), so the agent tells the cycle was stopped and
// ends without unwinding what that call still uses.
void Agent::abandon(const std::string& what)
{
    if (underWay_) {
        std::string scan = underWay_->exchange != nullptr ? underWay_->exchange->scan() : underWay_->scan;
        report(underWay_->reason, underWay_->base, stoppedDuring(what, scan), underWay_->started);
    }
    notifyServiceManager("STOPPING=1");
    std::cout.flush();
    std::clog.flush();
    std::fflush(nullptr);
    ::_exit(options_.once ? exitUnreached : exitPassed);
}

Wake Agent::nextWake(milliseconds timeout)
{
    if (reloadCarried_) {
        reloadCarried_ = false;
        return Wake::reload;
    }
    return signals_.wait(timeout);
}

void Agent::report(const std::string& reason, const std::string& server, const CycleReport& outcome,
                   std::chrono::steady_clock::time_point started)
{
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::string when = isoTime(std::chrono::system_clock::now());
    bool plain = server.rfind("http://", 0) == 0;
    if (options_.json) {
        Json line = {{"time", when},
                     {"reason", reason},
                     {"server", server},
                     {"scan", outcome.scan},
                     {"verdict", outcomeWord(outcome.outcome)},
                     {"durationSeconds", static_cast<double>(static_cast<long long>(seconds * 1000)) / 1000}};
        if (!outcome.message.empty()) {
            line["message"] = outcome.message;
        }
        if (plain) {
            line["warning"] = "the server is reached over plain http: its answers can be read and changed on the way";
        }
        console_.err() << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
        return;
    }
    char duration[32];
    std::snprintf(duration, sizeof duration, "%.2fs", seconds);
    console_.err() << when << " cycle (" << reason << ") server " << (server.empty() ? "-" : server) << " scan "
                   << (outcome.scan.empty() ? "-" : outcome.scan) << ": " << outcomeWord(outcome.outcome) << " in "
                   << duration;
    if (!outcome.message.empty()) {
        console_.err() << " - " << outcome.message;
    }
    if (plain) {
        console_.err() << " (warning: plain http, answers can be read and changed on the way)";
    }
    console_.err() << '\n' << std::flush;
}

milliseconds Agent::jittered(milliseconds period)
{
    std::uniform_real_distribution<double> spread(0.9, 1.1);
    return milliseconds(static_cast<long long>(static_cast<double>(period.count()) * spread(random_)));
}

void Agent::startWatches()
{
    auto on = [this](const char* why) {
        return [this, why](auto) {
            eventReason_ = why;
            signals_.notify();
        };
    };
    ip_.connect(on("address change"));
    watches_.emplace_back([this] { ip_.run(); });
    mac_ = std::make_unique<com::torvane::api::MACChangeNotifier>(10);
    mac_->connect(on("hardware address change"));
    watches_.emplace_back([this] { mac_->run(); });
    powerEnabled_ = power_.enable();
    if (powerEnabled_) {
        power_.connect([this](std::shared_ptr<tvi::PowerChangeState> state) {
            if (*state == tvi::PoweredOn) {
                eventReason_ = "wake-up";
                signals_.notify();
            }
        });
        watches_.emplace_back([this] { power_.runStandalone(); });
    }
}

void Agent::stopWatches()
{
    ip_.stop();
    if (mac_) {
        mac_->stop();
    }
    if (powerEnabled_) {
        power_.stop();
    }
    for (std::thread& watch : watches_) {
        watch.join();
    }
    if (powerEnabled_) {
        power_.disable();
    }
}

int Agent::run()
{
    CommandHost host(tvpolicy::systemHost(), commands_);
    tvpolicy::ScopedHost commandsInGroups(host);
    if (Result<void> loaded = reload(); !loaded) {
        console_.err() << "tvpolicy agent: " << loaded.error() << '\n';
        return exitUsage;
    }
    if (options_.status) {
        std::optional<Json> verdict = state_->lastVerdict();
        if (!verdict) {
            console_.out() << (options_.json ? "{}" : "no verdict yet") << '\n';
            return exitUnreached;
        }
        if (options_.json) {
            console_.out() << verdict->dump() << '\n';
        } else {
            console_.out() << (*verdict)["verdict"].get<std::string>() << " at "
                           << (*verdict)["when"].get<std::string>() << " (server "
                           << (*verdict)["server"].get<std::string>() << ", scan "
                           << (*verdict)["scan"].get<std::string>() << ")\n";
            if (verdict->contains("addresses")) {
                for (const auto& [name, addresses] : (*verdict)["addresses"].items()) {
                    console_.out() << "  renewed " << name << ':';
                    for (const auto& address : addresses) {
                        console_.out() << ' ' << address.get<std::string>();
                    }
                    console_.out() << '\n';
                }
            }
        }
        return exitPassed;
    }
    if (options_.once) {
        return exitFor(cycle("once").outcome);
    }

    startWatches();
    notifyServiceManager("READY=1");
    const milliseconds watchdog = watchdogPeriod();
    milliseconds backoff = firstBackoff;
    auto lastStart = std::chrono::steady_clock::now();
    std::string reason = "start";
    for (;;) {
        lastStart = std::chrono::steady_clock::now();
        Outcome outcome = cycle(reason).outcome;
        if (outcome == Outcome::passed || outcome == Outcome::failed || outcome == Outcome::nothingToDo) {
            fetchMonitors(lastBase_);
        }
        bool retry = outcome == Outcome::unreached || outcome == Outcome::cycleFailed;
        milliseconds wait = retry ? jittered(backoff) : jittered(settings_.interval);
        backoff = retry ? std::min(backoff * 2, longestBackoff) : firstBackoff;
        bool refused = outcome == Outcome::authFailure;  // nothing until the configuration changes
        auto due = std::chrono::steady_clock::now() + wait;
        reason.clear();
        while (reason.empty()) {
            auto left = std::chrono::duration_cast<milliseconds>(due - std::chrono::steady_clock::now());
            milliseconds slice = refused ? milliseconds(3600000) : std::max(left, milliseconds(0));
            if (watchdog.count() > 0) {
                slice = std::min(slice, watchdog);
            }
            if (!monitors_.empty()) {
                slice = std::min(slice, untilNextMonitor());
            }
            Wake wake = nextWake(slice);
            runDueMonitors();
            if (watchdog.count() > 0) {
                notifyServiceManager("WATCHDOG=1");
            }
            if (wake == Wake::stop) {
                notifyServiceManager("STOPPING=1");
                stopWatches();
                return exitPassed;
            }
            if (wake == Wake::reload) {
                if (Result<void> reread = reload(); !reread) {
                    console_.err() << "tvpolicy agent: the configuration was not reread: " << reread.error() << '\n';
                    continue;
                }
                reason = "configuration reread";
            } else if (wake == Wake::event && !refused) {
                if (std::chrono::steady_clock::now() - lastStart < burstWindow) {
                    continue;  // part of the burst that started the last cycle
                }
                std::string why = eventReason_.load();
                Wake settled = signals_.wait(burstSettle);
                reloadCarried_ = reloadCarried_ || settled == Wake::reload;
                if (settled == Wake::stop) {
                    continue;
                }
                reason = why;
            } else if (wake == Wake::timeout && !refused && std::chrono::steady_clock::now() >= due) {
                reason = retry ? "retry" : "interval";
            }
        }
    }
}

int runAgent(const AgentOptions& options, Console& console)
{
    Agent agent(options, console);
    return agent.run();
}

CommandAction setupAgent(CLI::App& app)
{
    auto options = std::make_shared<AgentOptions>();
    app.add_option("--config", options->configPath, "The configuration file (default /etc/tvpolicy/agent.toml)")
        ->option_text("FILE")
        ->each([options](const std::string&) { options->configGiven = true; });
    app.add_option("--server", options->server, "The server's base address (https://, or http:// with --allow-http)")
        ->option_text("URL");
    app.add_option("--discover", options->discover,
                   "Find the server through DNS SRV records of SERVICE (default tvpolicy)")
        ->option_text("SERVICE");
    app.add_option("--domain", options->domain, "The domain of the SRV records (default: the search domain)")
        ->option_text("D");
    app.add_flag("--once", options->once,
                 "Run one cycle: exit 0 passed, 1 failed, 3 no server reached or the cycle failed, 4 login refused");
    app.add_option("--state-dir", options->stateDir,
                   "Keep results and the last verdict here (default /var/lib/tvpolicy)")
        ->option_text("DIR");
    app.add_option("--interval", options->interval, "Time between two cycles (default 4h)")->option_text("DURATION");
    app.add_option("--cacert", options->cacert, "Trust the CAs of this PEM file for the server")->option_text("FILE");
    app.add_flag("--allow-http", options->allowHttp, "Allow a plain http:// server");
    app.add_flag("--json", options->json, "One JSON object per cycle on standard error");
    app.add_flag("--status", options->status, "Print the last verdict and when it was reached");
    return [options](Console& console) { return runAgent(*options, console); };
}

const bool registered = registerCommand(
    {"agent", "Prove this computer's compliance to an access-control server, and keep it proven", 80, &setupAgent});

}  // namespace
}  // namespace tvpolicy::cli
