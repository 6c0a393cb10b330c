#include "SpawnQuietly.h"

#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace bench {

pid_t spawnQuietly(const std::vector<std::string>& argv)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
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
