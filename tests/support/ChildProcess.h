#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace testing_support {

/// A program started for a test (argv[0] is a path or looked up in PATH), with its standard
/// streams on /dev/null. It is killed and reaped when the object ends, unless stopped before.
class ChildProcess {
public:
    explicit ChildProcess(const std::vector<std::string>& argv);
    /// With `captureOutput`, its standard output is a pipe that readLine reads.
    ChildProcess(const std::vector<std::string>& argv, bool captureOutput);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return pid_; }
    /// Kills it and waits until it has exited, but leaves it unreaped: a zombie, still in the
    /// process table, until stop() or the destructor reaps it.
    void killAndLeaveZombie();
    /// Kills it (if still running) and reaps it.
    void stop();

    /// The next line it writes to its captured standard output, without the newline; nothing
    /// when none came within `timeout` or the output ended.
    std::optional<std::string> readLine(std::chrono::milliseconds timeout);
    /// Sends `signal` and waits at most `timeout` for it to exit: its exit status (128 + the
    /// signal that ended it), or nothing when it still ran (it is then killed).
    std::optional<int> signalAndWait(int signal, std::chrono::milliseconds timeout);

private:
    void spawn(const std::vector<std::string>& argv, bool captureOutput);

    pid_t pid_ = -1;
    bool exited_ = false;
    int output_ = -1;
    std::string pending_;
};

}  // namespace testing_support
