// tvpolicy watch [--ip] [--mac] [--power] [--period N] [--json]: reports every change of this
// computer's addresses, interface hardware addresses and power state as the agent hears of it,
// one line per change, until SIGINT or SIGTERM.
#include <atomic>
#include <csignal>
#include <ctime>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/MACChangeNotifier.h>
#include <tvpolicy/host/PowerChangeNotifier.h>

#include "commands/Command.h"
#include "io/StopSignals.h"

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr int defaultPeriod = 10;

std::string utcNow()
{
    std::time_t now = std::time(nullptr);
    std::tm parts{};
    char text[32] = "";
    if (::gmtime_r(&now, &parts) != nullptr) {
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    }
    return text;
}

const char* powerName(int state)
{
    switch (state) {
    case tvi::IdleSleepRequested: return "IdleSleepRequested";
    case tvi::SleepRequested: return "SleepRequested";
    case tvi::PoweringOn: return "PoweringOn";
    case tvi::PoweredOn: return "PoweredOn";
    default: return "Unknown";
    }
}

// Writes the change lines; slots of the three notifiers call it from their own threads.
class ChangePrinter {
public:
    ChangePrinter(Console& console, bool json) : console_(console), json_(json) {}

    void addresses(const char* kind, const std::vector<std::string>& list)
    {
        std::string text;
        for (const std::string& item : list) {
            text += (text.empty() ? "" : " ") + item;
        }
        print(kind, Json(list), text.empty() ? "-" : text);
    }

    void power(int state)
    {
        print("power", Json{{"state", state}, {"name", powerName(state)}},
              std::to_string(state) + " " + powerName(state));
    }

    /// True once a line could not be written.
    bool failed() const { return failed_; }

private:
    void print(const char* kind, const Json& payload, const std::string& text)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (json_) {
            Json line{{"time", utcNow()}, {"kind", kind}, {"payload", payload}};
            console_.out() << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
        } else {
            console_.out() << utcNow() << "  " << kind << "  " << text << '\n';
        }
        console_.out().flush();
        if (!console_.out()) {
            failed_ = true;
        }
    }

    Console& console_;
    bool json_;
    std::mutex mutex_;
    std::atomic<bool> failed_{false};
};

// One notifier on a thread of its own: `run` until `stop`. `ended` is set when run returned.
struct Watch {
    const char* what = "";
    std::function<void()> run;
    std::function<void()> stop;
    std::atomic<bool> ended{false};
    std::thread thread;
};

void addWatch(std::vector<std::unique_ptr<Watch>>& watches, const char* what, std::function<void()> run,
              std::function<void()> stop)
{
    auto watch = std::make_unique<Watch>();
    watch->what = what;
    watch->run = std::move(run);
    watch->stop = std::move(stop);
    watches.push_back(std::move(watch));
}

void startWatch(Watch& watch)
{
    watch.thread = std::thread([&watch] {
        watch.run();
        watch.ended = true;
    });
}

struct Options {
    bool ip = false;
    bool mac = false;
    bool power = false;
    int period = defaultPeriod;
    bool json = false;
};

int watchChanges(const Options& options, Console& console)
{
    bool all = !options.ip && !options.mac && !options.power;
    ChangePrinter printer(console, options.json);
    com::torvane::api::IPChangeNotifier ip;
    com::torvane::api::MACChangeNotifier mac(options.period);
    tvi::PowerChangeNotifier power;
    std::vector<std::unique_ptr<Watch>> watches;

    if (all || options.ip) {
        ip.connect([&printer](std::shared_ptr<std::vector<std::string>> list) { printer.addresses("ip", *list); });
        addWatch(
            watches, "address", [&ip] { ip.run(); }, [&ip] { ip.stop(); });
    }
    if (all || options.mac) {
        mac.connect([&printer](std::shared_ptr<std::vector<std::string>> list) { printer.addresses("mac", *list); });
        addWatch(
            watches, "hardware address", [&mac] { mac.run(); }, [&mac] { mac.stop(); });
    }
    if (all || options.power) {
        if (power.enable()) {
            power.connect([&printer](std::shared_ptr<tvi::PowerChangeState> state) { printer.power(*state); });
            addWatch(
                watches, "power", [&power] { power.runStandalone(); }, [&power] { power.stop(); });
        } else {
            console.err() << "tvpolicy watch: power events cannot be watched: systemd-logind cannot be reached\n"
                          << std::flush;
            if (!all) {
                return exitFailed;
            }
        }
    }

    // A reader that went away must not kill the program half-way through a line.
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    struct sigaction savedPipe {};
    ::sigaction(SIGPIPE, &ignore, &savedPipe);

    StopSignals stop;
    for (auto& watch : watches) {
        startWatch(*watch);
    }
    int status = exitPassed;
    std::vector<bool> reported(watches.size(), false);
    for (;;) {
        std::timespec tick{};
        ::clock_gettime(CLOCK_REALTIME, &tick);
        tick.tv_nsec += 100'000'000;
        if (tick.tv_nsec >= 1'000'000'000) {
            tick.tv_sec += 1;
            tick.tv_nsec -= 1'000'000'000;
        }
        if (stop.waitUntil(tick) || printer.failed()) {
            break;
        }
        std::size_t running = 0;
        for (std::size_t i = 0; i < watches.size(); ++i) {
            if (!watches[i]->ended) {
                ++running;
            } else if (!reported[i]) {
                reported[i] = true;
                console.err() << "tvpolicy watch: the " << watches[i]->what
                              << " watch ended: its events cannot be read\n"
                              << std::flush;
            }
        }
        if (running == 0) {
            status = exitFailed;
            break;
        }
    }
    for (auto& watch : watches) {
        watch->stop();
    }
    for (auto& watch : watches) {
        watch->thread.join();
    }
    power.disable();
    ::sigaction(SIGPIPE, &savedPipe, nullptr);
    return status;
}

CommandAction setupWatch(CLI::App& app)
{
    auto options = std::make_shared<Options>();
    app.add_flag("--ip", options->ip, "Watch IPv4 and IPv6 address changes");
    app.add_flag("--mac", options->mac, "Watch the set of interface hardware addresses");
    app.add_flag("--power", options->power, "Watch sleep and wake-up (systemd-logind)");
    app.add_option("--period", options->period,
                   "Seconds between two looks at the hardware addresses (default 10; less than 3 counts as 3)");
    app.add_flag("--json", options->json, "Print each change as one JSON object per line");
    return [options](Console& console) { return watchChanges(*options, console); };
}

const bool registered = registerCommand(
    {"watch", "Print every address, hardware-address and power change, one line each, until Ctrl-C", 47, &setupWatch});

}  // namespace
}  // namespace tvpolicy::cli
