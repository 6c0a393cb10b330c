#pragma once

#include <atomic>
#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include "io/UniqueFd.h"

namespace tvpolicy::cli::agent {

/// Why a wait of the agent ended.
enum class Wake { timeout, stop, reload, event };

/// The agent's signals and wake-ups: SIGINT and SIGTERM ask it to stop, SIGHUP to reread its
/// configuration, and another thread may wake it for an event. A stop that the program has not
/// finished `stopGrace` after the signal ends the process with status 0: everything the agent
/// keeps is written atomically, so nothing is left half-done. One instance at a time; the
/// earlier handlers come back on destruction.
class AgentSignals {
public:
    static constexpr std::chrono::milliseconds stopGrace{700};

    AgentSignals();
    ~AgentSignals();
    AgentSignals(const AgentSignals&) = delete;
    AgentSignals& operator=(const AgentSignals&) = delete;

    /// Turns true on SIGINT or SIGTERM; transfers watch it to end early.
    const std::atomic<bool>& stopFlag() const;
    /// Wakes a wait for an event; safe from any thread.
    void notify();
    /// Waits up to `timeout` for a stop, a reload or an event (stop first, then reload, then event).
    Wake wait(std::chrono::milliseconds timeout);

private:
    void guard();

    UniqueFd readEnd_;
    UniqueFd writeEnd_;
    UniqueFd guardRead_;
    UniqueFd guardWrite_;
    std::thread guard_;
    struct sigaction savedInt_ {};
    struct sigaction savedTerm_ {};
    struct sigaction savedHup_ {};
};

/// Tells the service manager about the agent when it runs under one ($NOTIFY_SOCKET): "READY=1",
/// "STOPPING=1", "WATCHDOG=1", "STATUS=...". Nothing happens without the variable.
void notifyServiceManager(const std::string& state);
/// Half the watchdog period the service manager asks for ($WATCHDOG_USEC), or zero for none.
std::chrono::milliseconds watchdogPeriod();

}  // namespace tvpolicy::cli::agent
