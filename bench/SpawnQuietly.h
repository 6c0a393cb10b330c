#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace bench {

/// Starts `argv` (argv[0] looked up in PATH) with its standard output and error on /dev/null;
/// the pid, or -1.
pid_t spawnQuietly(const std::vector<std::string>& argv);

/// Starts `argv` like spawnQuietly, but with its standard error on a pipe whose reading end
/// (close-on-exec, the caller's to close) is put in `errorRead`; the pid, or -1.
pid_t spawnReadingErrors(const std::vector<std::string>& argv, int& errorRead);

/// Waits for `pid` and returns its wait status.
int waitFor(pid_t pid);

/// Starts `argv` and waits for it: true when it exited with status 0.
bool runQuietly(const std::vector<std::string>& argv);

/// The wall times, processor times (user and system) and peak memory of the runs of one program.
struct ProcessFigures {
    std::vector<double> seconds;
    std::vector<double> cpuSeconds;
    long peakKilobytes = 0;

    /// The median wall time in milliseconds (0 without runs).
    double medianMs() const;
    /// The median processor time in milliseconds: less swayed than the wall time by other
    /// programs that share the machine.
    double medianCpuMs() const;
};

/// Runs `argv` to its end, its output on /dev/null, and adds its wall time and peak memory to
/// `figures`; its exit status (-1 when it did not run or was killed).
int timeProcess(const std::vector<std::string>& argv, ProcessFigures& figures);

}  // namespace bench
