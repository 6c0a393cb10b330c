#include "support/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <stdexcept>

extern char** environ;

namespace testing_support {

ChildProcess::ChildProcess(const std::vector<std::string>& argv) { spawn(argv, false); }

ChildProcess::ChildProcess(const std::vector<std::string>& argv, bool captureOutput) { spawn(argv, captureOutput); }

void ChildProcess::spawn(const std::vector<std::string>& argv, bool captureOutput)
{
    int pipeFds[2] = {-1, -1};
    if (captureOutput && ::pipe2(pipeFds, O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot create a pipe for " + argv[0]);
    }
    std::vector<char*> args;
    args.reserve(argv.size() + 1);
    for (const std::string& arg : argv) {
        args.push_back(const_cast<char*>(arg.c_str()));
    }
    args.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (int fd = 0; fd <= 2; ++fd) {
        if (fd == 1 && captureOutput) {
            posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1);
        } else {
            posix_spawn_file_actions_addopen(&actions, fd, "/dev/null", fd == 0 ? O_RDONLY : O_WRONLY, 0);
        }
    }
    int error = ::posix_spawnp(&pid_, args[0], &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (captureOutput) {
        ::close(pipeFds[1]);
        output_ = pipeFds[0];
    }
    if (error != 0) {
        throw std::runtime_error("cannot start " + argv[0]);
    }
}

ChildProcess::~ChildProcess()
{
    stop();
    if (output_ >= 0) {
        ::close(output_);
    }
}

std::optional<std::string> ChildProcess::readLine(std::chrono::milliseconds timeout)
{
    auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        std::size_t newline = pending_.find('\n');
        if (newline != std::string::npos) {
            std::string line = pending_.substr(0, newline);
            pending_.erase(0, newline + 1);
            return line;
        }
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (output_ < 0 || left.count() <= 0) {
            return std::nullopt;
        }
        pollfd ready{output_, POLLIN, 0};
        if (::poll(&ready, 1, static_cast<int>(left.count())) <= 0) {
            continue;
        }
        char buffer[4096];
        ssize_t got = ::read(output_, buffer, sizeof buffer);
        if (got <= 0) {
            return std::nullopt;
        }
        pending_.append(buffer, static_cast<std::size_t>(got));
    }
}

std::optional<int> ChildProcess::signalAndWait(int signal, std::chrono::milliseconds timeout)
{
    if (pid_ <= 0) {
        return std::nullopt;
    }
    ::kill(pid_, signal);
    auto deadline = std::chrono::steady_clock::now() + timeout;
    while (std::chrono::steady_clock::now() < deadline) {
        int status = 0;
        pid_t done = ::waitpid(pid_, &status, WNOHANG);
        if (done == pid_) {
            pid_ = -1;
            return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        ::usleep(10'000);
    }
    stop();
    return std::nullopt;
}

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
