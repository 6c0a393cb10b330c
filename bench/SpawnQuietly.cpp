#include "SpawnQuietly.h"

#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

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

}  // namespace bench
