#pragma once

#include <csignal>
#include <ctime>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli {

/// While alive, SIGINT and SIGTERM do not end the program: they ask it to stop, and a wait
/// returns as soon as one arrives. One instance at a time; the earlier handlers come back on
/// destruction.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    /// True once SIGINT or SIGTERM has arrived.
    bool stopRequested();
    /// Waits until `deadline` (CLOCK_REALTIME) or a stop request; true when asked to stop.
    bool waitUntil(const std::timespec& deadline);
    /// The signal that asked to stop; 0 before one came.
    int signalNumber() const;
    /// Readable once a stop request has come, for a caller that polls other descriptors too.
    int wakeDescriptor() const { return readEnd_.get(); }

private:
    OwnedFd readEnd_;
    OwnedFd writeEnd_;
    struct sigaction savedInt_ {};
    struct sigaction savedTerm_ {};
};

}  // namespace tvpolicy::cli
