#include "process/CommandGroups.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tvpolicy::cli {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds longestSlice{50};

// How a command is started: a process group of its own, no blocked signals and the default
// action for the ones a terminal or a service manager sends, standard input from /dev/null,
// standard output into `out` (/dev/null when it is -1).
class SpawnSettings {
public:
    explicit SpawnSettings(int out)
    {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        if (out >= 0) {
            ::posix_spawn_file_actions_adddup2(&actions_, out, STDOUT_FILENO);
        } else {
            ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        }
        sigset_t none;
        sigemptyset(&none);
        sigset_t defaults;
        sigemptyset(&defaults);
        for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) {
            sigaddset(&defaults, signal);
        }
        ::posix_spawnattr_setpgroup(&attributes_, 0);
        ::posix_spawnattr_setsigmask(&attributes_, &none);
        ::posix_spawnattr_setsigdefault(&attributes_, &defaults);
        ::posix_spawnattr_setflags(&attributes_,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings()
    {
        ::posix_spawn_file_actions_destroy(&actions_);
        ::posix_spawnattr_destroy(&attributes_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}  // namespace

// The shell of one command, which leads its process group. It is reaped only by reap() or
// endGroup(): until then it stays at least a zombie, so its group id cannot be handed to another
// process while a signal may still be sent to it.
class CommandGroups::Child {
public:
    Child(pid_t pid, milliseconds grace) : pid_(pid), grace_(grace) {}
    ~Child()
    {
        if (!reaped_) {
            endGroup();
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    // The shell has exited (it is not reaped yet).
    bool exited() const
    {
        siginfo_t info{};
        int done = 0;
        do {
            done = ::waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOHANG | WNOWAIT);
        } while (done < 0 && errno == EINTR);
        return done < 0 || info.si_pid == pid_;
    }

    int reap()
    {
        int status = 0;
        while (::waitpid(pid_, &status, 0) < 0 && errno == EINTR) {
        }
        reaped_ = true;
        return status;
    }

    // TERM to the whole group; KILL to what is left of it once the shell has gone or the grace
    // has passed, whichever comes first; then the shell is reaped.
    void endGroup()
    {
        ::kill(-pid_, SIGTERM);
        const auto deadline = std::chrono::steady_clock::now() + grace_;
        while (!exited() && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(milliseconds(5));
        }
        ::kill(-pid_, SIGKILL);
        reap();
    }

private:
    pid_t pid_;
    milliseconds grace_;
    bool reaped_ = false;
};

CommandGroups::CommandGroups(milliseconds grace, milliseconds timeout) : grace_(grace), timeout_(timeout)
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::runtime_error("cannot create the pipe that ends commands");
    }
    endRead_.reset(fds[0]);
    endWrite_.reset(fds[1]);
}

void CommandGroups::end()
{
    if (!ended_.exchange(true)) {
        char byte = 1;
        (void)::write(endWrite_.get(), &byte, 1);
    }
}

std::optional<std::string> CommandGroups::output(const std::string& command, std::size_t keep)
{
    Outcome outcome = run(command, true, keep);
    if (outcome.ending != Ending::finished) {
        return std::nullopt;
    }
    return std::move(outcome.output);
}

std::optional<int> CommandGroups::status(const std::string& command)
{
    Outcome outcome = run(command, false);
    if (outcome.ending != Ending::finished) {
        return std::nullopt;
    }
    return outcome.waitStatus;
}

CommandGroups::Outcome CommandGroups::run(const std::string& command, bool readOutput, std::size_t keep, int endOn)
{
    Outcome outcome;
    if (ended_) {
        return outcome;
    }
    OwnedFd outRead;
    OwnedFd outWrite;
    if (readOutput) {
        int fds[2];
        if (::pipe2(fds, O_CLOEXEC) != 0) {
            return outcome;
        }
        outRead.reset(fds[0]);
        outWrite.reset(fds[1]);
    }
    pid_t pid = -1;
    {
        SpawnSettings settings(outWrite.get());
        const char* argv[] = {"sh", "-c", command.c_str(), nullptr};
        if (::posix_spawn(&pid, "/bin/sh", settings.actions(), settings.attributes(), const_cast<char* const*>(argv),
                          environ) != 0) {
            return outcome;
        }
    }
    Child child(pid, grace_);
    outWrite.reset();
    const bool bounded = timeout_.count() > 0;
    const auto deadline = std::chrono::steady_clock::now() + timeout_;

    // While the output is open, the wait is for it, the end or the deadline; once it has closed
    // (or when there is none), the shell's exit is looked for in slices that grow from 1 ms.
    char buffer[16384];
    milliseconds slice(1);
    for (;;) {
        const bool reading = static_cast<bool>(outRead);
        milliseconds wait = reading ? milliseconds(-1) : slice;
        if (bounded) {
            auto left = std::chrono::duration_cast<milliseconds>(deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0) {
                child.endGroup();
                outcome.ending = Ending::timedOut;
                return outcome;
            }
            wait = wait.count() < 0 ? left : std::min(wait, left);
        }
        struct pollfd waits[3] = {{endRead_.get(), POLLIN, 0}, {endOn, POLLIN, 0}, {outRead.get(), POLLIN, 0}};
        int ready = ::poll(waits, 3, static_cast<int>(wait.count()));
        if ((ready < 0 && errno != EINTR) || waits[0].revents != 0 || waits[1].revents != 0) {
            child.endGroup();
            outcome.ending = Ending::ended;
            return outcome;
        }
        if (reading && waits[2].revents != 0) {
            ssize_t got = ::read(outRead.get(), buffer, sizeof buffer);
            if (got > 0) {
                std::size_t room = keep - std::min(keep, outcome.output.size());
                outcome.output.append(buffer, std::min(room, static_cast<std::size_t>(got)));
            } else if (got == 0 || errno != EINTR) {
                outRead.reset();
            }
            continue;
        }
        if (!reading) {
            if (child.exited()) {
                outcome.waitStatus = child.reap();
                outcome.ending = Ending::finished;
                return outcome;
            }
            slice = std::min(slice * 2, longestSlice);
        }
    }
}

}  // namespace tvpolicy::cli
