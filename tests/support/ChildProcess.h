#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace testing_support {

/// A program started for a test (argv[0] is a path or looked up in PATH), with its standard
/// streams on /dev/null. It is killed and reaped when the object ends, unless stopped before.
class ChildProcess {
public:
    explicit ChildProcess(const std::vector<std::string>& argv);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return pid_; }
    /// Kills it and waits until it has exited, but leaves it unreaped: a zombie, still in the
    /// process table, until stop() or the destructor reaps it.
    void killAndLeaveZombie();
    /// Kills it (if still running) and reaps it.
    void stop();

private:
    pid_t pid_ = -1;
    bool exited_ = false;
};

}  // namespace testing_support
