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

}  // namespace bench
