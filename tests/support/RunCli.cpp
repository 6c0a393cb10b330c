#include "support/RunCli.h"

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

namespace {

struct Pipe {
    int fds[2] = {-1, -1};
    Pipe()
    {
        if (::pipe2(fds, O_CLOEXEC) != 0) {
            throw std::runtime_error("pipe failed");
        }
    }
    ~Pipe() { closeBoth(); }
    void close(int which)
    {
        if (fds[which] >= 0) {
            ::close(fds[which]);
            fds[which] = -1;
        }
    }
    void closeBoth()
    {
        close(0);
        close(1);
    }
};

}  // namespace

CliResult runProgram(const std::vector<std::string>& argv, const std::string& input)
{
    Pipe in, out, err;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in.fds[0], 0);
    posix_spawn_file_actions_adddup2(&actions, out.fds[1], 1);
    posix_spawn_file_actions_adddup2(&actions, err.fds[1], 2);

    std::vector<char*> args;
    args.reserve(argv.size() + 1);
    for (const std::string& arg : argv) {
        args.push_back(const_cast<char*>(arg.c_str()));
    }
    args.push_back(nullptr);

    pid_t pid = -1;
    int spawned = ::posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0) {
        throw std::runtime_error("cannot start " + argv[0]);
    }
    in.close(0);
    out.close(1);
    err.close(1);

    // A reader that has gone away must not kill the test with SIGPIPE.
    struct sigaction ignore {
    }, previous{};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignore, &previous);

    CliResult result;
    std::size_t written = 0;
    if (input.empty()) {
        in.close(1);
    }
    while (out.fds[0] >= 0 || err.fds[0] >= 0) {
        pollfd fds[3] = {{out.fds[0], POLLIN, 0}, {err.fds[0], POLLIN, 0}, {in.fds[1], POLLOUT, 0}};
        if (::poll(fds, 3, -1) < 0 && errno != EINTR) {
            break;
        }
        char buffer[65536];
        for (int i = 0; i < 2; ++i) {
            if (fds[i].revents == 0) {
                continue;
            }
            Pipe& pipe = i == 0 ? out : err;
            ssize_t n = ::read(pipe.fds[0], buffer, sizeof buffer);
            if (n <= 0) {
                pipe.close(0);
            } else {
                (i == 0 ? result.out : result.err).append(buffer, static_cast<std::size_t>(n));
            }
        }
        if (fds[2].revents != 0) {
            ssize_t n = ::write(in.fds[1], input.data() + written, input.size() - written);
            if (n <= 0) {
                in.close(1);
            } else if ((written += static_cast<std::size_t>(n)) == input.size()) {
                in.close(1);
            }
        }
    }
    in.close(1);
    ::sigaction(SIGPIPE, &previous, nullptr);

    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

CliResult runCli(const std::vector<std::string>& args, const std::string& input)
{
    std::vector<std::string> argv{TVPOLICY_CLI};
    argv.insert(argv.end(), args.begin(), args.end());
    return runProgram(argv, input);
}

std::vector<std::string> loggingTo(const std::filesystem::path& log, std::vector<std::string> argv)
{
    argv.insert(argv.begin(), {"sh", "-c", "exec \"$0\" \"$@\" 2>>'" + log.string() + "'"});
    return argv;
}

}  // namespace testing_support
