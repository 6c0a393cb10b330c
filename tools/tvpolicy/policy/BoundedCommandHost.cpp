#include "policy/BoundedCommandHost.h"

#include <cerrno>
#include <csignal>
#include <functional>
#include <sstream>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>
#include "io/StopSignals.h"

extern char** environ;

namespace tvpolicy::cli {

namespace {

// The spawn's settings: its own process group, standard input from /dev/null, standard output
// into `writeEnd`.
class SpawnSettings {
public:
    explicit SpawnSettings(int writeEnd)
    {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&actions_, writeEnd, STDOUT_FILENO);
        ::posix_spawnattr_setpgroup(&attributes_, 0);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP);
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

bool reaped(pid_t pid, int options)
{
    int status = 0;
    pid_t done = 0;
    do {
        done = ::waitpid(pid, &status, options);
    } while (done < 0 && errno == EINTR);
    return done != 0;
}

// Ends the group that `shell` leads: TERM, and KILL when the shell has not gone a second later.
void endGroup(pid_t shell)
{
    ::kill(-shell, SIGTERM);
    for (int i = 0; i < 100; ++i) {
        if (reaped(shell, WNOHANG)) {
            ::kill(-shell, SIGKILL);  // whatever of the group ignored TERM
            return;
        }
        ::usleep(10000);
    }
    ::kill(-shell, SIGKILL);
    reaped(shell, 0);
}

std::string secondsText(std::chrono::milliseconds duration)
{
    std::ostringstream text;
    text << static_cast<double>(duration.count()) / 1000.0 << " s";
    return text.str();
}

}  // namespace

BoundedCommandHost::BoundedCommandHost(tvpolicy::HostProbe& inner, std::chrono::milliseconds timeout)
    : ForwardingHostProbe(inner),
      timeout_(timeout)
{
}

std::string BoundedCommandHost::commandOutput(const std::string& command, unsigned long bufferSize)
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0) {
        return std::string();
    }
    OwnedFd readEnd(fds[0]);
    OwnedFd writeEnd(fds[1]);
    std::string output;
    int stopSignal = 0;
    {
        StopSignals stop;
        pid_t shell = -1;
        {
            SpawnSettings settings(writeEnd.get());
            const char* argv[] = {"sh", "-c", command.c_str(), nullptr};
            if (::posix_spawn(&shell, "/bin/sh", settings.actions(), settings.attributes(),
                              const_cast<char* const*>(argv), environ) != 0) {
                return std::string();
            }
        }
        writeEnd.reset();
        std::vector<char> buffer(bufferSize > 1 ? bufferSize - 1 : 1);
        const auto deadline = std::chrono::steady_clock::now() + timeout_;
        for (;;) {
            auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0) {
                endGroup(shell);
                timedOut_[command] = "the command did not finish within " + secondsText(timeout_) +
                                     " (--command-timeout); it and its process group were ended";
                return std::string();
            }
            struct pollfd waits[2] = {{readEnd.get(), POLLIN, 0}, {stop.wakeDescriptor(), POLLIN, 0}};
            int ready = ::poll(waits, 2, static_cast<int>(left.count()));
            if (stop.stopRequested()) {
                endGroup(shell);
                stopSignal = stop.signalNumber();
                break;
            }
            if (ready <= 0) {
                continue;
            }
            ssize_t got = ::read(readEnd.get(), buffer.data(), buffer.size());
            if (got < 0 && errno == EINTR) {
                continue;
            }
            if (got <= 0) {
                reaped(shell, 0);
                break;
            }
            output.append(buffer.data(), static_cast<std::size_t>(got));
        }
    }
    if (stopSignal != 0) {
        // Asked to stop while the command ran: its group is gone; the signal goes on to the
        // handler from before the command (the progress bar's, which erases the bar and ends the
        // program), or ends the program by default (also when it was ignored, as it is for a
        // background job: a signal that ended the command ends the run too).
        struct sigaction before {};
        ::sigaction(stopSignal, nullptr, &before);
        if (before.sa_handler == SIG_IGN) {
            ::signal(stopSignal, SIG_DFL);
        }
        ::raise(stopSignal);
    }
    return output;
}

void BoundedCommandHost::explainTimeouts(nlohmann::ordered_json& report) const
{
    if (timedOut_.empty()) {
        return;
    }
    std::function<void(nlohmann::ordered_json&)> visit = [&](nlohmann::ordered_json& node) {
        if (node.is_array()) {
            for (auto& child : node) {
                visit(child);
            }
            return;
        }
        if (!node.is_object()) {
            return;
        }
        if (node.value("element", std::string()) == "VersionFromScript" && node.contains("attributes")) {
            auto found = timedOut_.find(node["attributes"].value("script", std::string()));
            if (found != timedOut_.end()) {
                node["cause"] = found->second;
            }
        }
        for (const char* key : {"items", "sections", "tasks", "terms"}) {
            if (node.contains(key)) {
                visit(node[key]);
            }
        }
    };
    visit(report);
}

}  // namespace tvpolicy::cli
