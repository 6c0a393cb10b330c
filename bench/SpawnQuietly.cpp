#include "SpawnQuietly.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>

extern char** environ;

namespace bench {

namespace {

// Starts `argv` with its standard output on /dev/null and its standard error on `errorFd`
// (/dev/null when negative).
pid_t spawnWithError(const std::vector<std::string>& argv, int errorFd)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    if (errorFd >= 0) {
        posix_spawn_file_actions_adddup2(&actions, errorFd, 2);
    } else {
        posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    }
    pid_t pid = -1;
    std::vector<char*> args;
    args.reserve(argv.size() + 1);
    for (const std::string& arg : argv) {
        args.push_back(const_cast<char*>(arg.c_str()));
    }
    args.push_back(nullptr);
    if (posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ) != 0) {
        pid = -1;
    }
    posix_spawn_file_actions_destroy(&actions);
    return pid;
}

}  // namespace

pid_t spawnQuietly(const std::vector<std::string>& argv) { return spawnWithError(argv, -1); }

pid_t spawnReadingErrors(const std::vector<std::string>& argv, int& errorRead)
{
    int fds[2];
    errorRead = -1;
    if (::pipe2(fds, O_CLOEXEC) != 0) {
        return -1;
    }
    pid_t pid = spawnWithError(argv, fds[1]);
    ::close(fds[1]);
    if (pid < 0) {
        ::close(fds[0]);
        return -1;
    }
    errorRead = fds[0];
    return pid;
}

int waitFor(pid_t pid)
{
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

bool runQuietly(const std::vector<std::string>& argv)
{
    pid_t pid = spawnQuietly(argv);
    if (pid < 0) {
        return false;
    }
    int status = waitFor(pid);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

namespace {

double medianMillis(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2] * 1e3;
}

double toSeconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

double ProcessFigures::medianMs() const { return medianMillis(seconds); }

double ProcessFigures::medianCpuMs() const { return medianMillis(cpuSeconds); }

int timeProcess(const std::vector<std::string>& argv, ProcessFigures& figures)
{
    auto start = std::chrono::steady_clock::now();
    pid_t pid = spawnQuietly(argv);
    int status = 0;
    rusage usage{};
    pid_t waited = -1;
    while (pid >= 0 && (waited = ::wait4(pid, &status, 0, &usage)) < 0 && errno == EINTR) {
    }
    if (waited != pid || !WIFEXITED(status)) {
        return -1;
    }
    figures.seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    figures.cpuSeconds.push_back(toSeconds(usage.ru_utime) + toSeconds(usage.ru_stime));
    figures.peakKilobytes = std::max(figures.peakKilobytes, usage.ru_maxrss);
    return WEXITSTATUS(status);
}

}  // namespace bench
