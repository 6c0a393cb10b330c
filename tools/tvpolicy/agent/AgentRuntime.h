#pragma once

#include <atomic>
#include <chrono>
#include <csignal>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli::agent {

/// Why a wait of the agent ended.
enum class Wake { timeout, stop, reload, event };

/// The agent's signals and wake-ups: SIGINT and SIGTERM ask it to stop, SIGHUP to reread its
/// configuration, and another thread may wake it for an event. A stop ends every wait at once
/// and turns the stop flag, which the transfers and the discovery watch to end early. One
/// instance at a time; the earlier handlers come back on destruction.
class AgentSignals {
public:
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
    /// Waits until `fd` is readable or a stop is asked for: true for the stop. A reload or an
    /// event that comes meanwhile is kept for the next wait().
    bool waitForStopOr(int fd);

private:
    void drain();

    OwnedFd readEnd_;
    OwnedFd writeEnd_;
    struct sigaction savedInt_ {};
    struct sigaction savedTerm_ {};
    struct sigaction savedHup_ {};
};

}  // namespace tvpolicy::cli::agent
