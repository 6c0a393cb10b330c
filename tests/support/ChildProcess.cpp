#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>

extern char** environ;

namespace testing_support {

ChildProcess::ChildProcess(const std::vector<std::string>& argv)
{
    std::vector<char*> args;
    for (const std::string& arg : argv) {
        args.push_back(const_cast<char*>(arg.c_str()));
    }
    args.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (int fd = 0; fd <= 2; ++fd) {
        posix_spawn_file_actions_addopen(&actions, fd, "/dev/null", fd == 0 ? O_RDONLY : O_WRONLY, 0);
    }
    int error = ::posix_spawnp(&pid_, args[0], &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw std::runtime_error("cannot start " + argv[0]);
    }
}

ChildProcess::~ChildProcess() { stop(); }

void ChildProcess::killAndLeaveZombie()
{
    if (pid_ <= 0 || exited_) {
        return;
    }
    ::kill(pid_, SIGKILL);
    siginfo_t info{};
    while (::waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
    }
    exited_ = true;
}

void ChildProcess::stop()
{
    if (pid_ <= 0) {
        return;
    }
    if (!exited_) {
        ::kill(pid_, SIGKILL);
    }
    while (::waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) {
    }
    pid_ = -1;
}

}  // namespace testing_support
