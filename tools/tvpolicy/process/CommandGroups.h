#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include <sys/types.h>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli {

/// Runs the shell commands of checks (`sh -c COMMAND`), each in a process group of its own with
/// standard input from /dev/null and no blocked signals, so that what a command starts can be
/// ended with it. The agent, `run` and `monitor` all start their commands here.
///
/// A command is ended with its whole group when end() is called (from any thread), when the
/// descriptor a caller names becomes readable, or when it has run for longer than `timeout`:
/// the group gets TERM, then KILL once the shell has gone or `grace` has passed. After end() no
/// command starts. All members are safe to call from any thread.
class CommandGroups {
public:
    /// How a command came to an end.
    enum class Ending {
        finished,    // it exited: waitStatus holds its wait status
        notStarted,  // no shell could start, or end() had been called
        ended,       // end() or the caller's descriptor ended it
        timedOut,    // it ran longer than the time-out and was ended
    };
    struct Outcome {
        Ending ending = Ending::notStarted;
        int waitStatus = 0;
        std::string output;
    };

    /// `timeout` of zero: a command may run for as long as it takes.
    explicit CommandGroups(std::chrono::milliseconds grace = std::chrono::milliseconds(200),
                           std::chrono::milliseconds timeout = std::chrono::milliseconds(0));
    CommandGroups(const CommandGroups&) = delete;
    CommandGroups& operator=(const CommandGroups&) = delete;

    /// Runs `command` and waits for it. With `readOutput`, what it prints on standard output is
    /// read to the end (beyond `keep` bytes it is read and dropped); otherwise its standard
    /// output is /dev/null. A readable `endOn` (-1: none) ends this command as end() would.
    Outcome run(const std::string& command, bool readOutput, std::size_t keep = defaultKeep, int endOn = -1);

    /// What the command printed; nothing when no shell could start or the command was ended.
    std::optional<std::string> output(const std::string& command, std::size_t keep = defaultKeep);
    /// The command's wait status, its standard output on /dev/null; nothing when no shell could
    /// start or the command was ended.
    std::optional<int> status(const std::string& command);

    /// Ends the commands under way and refuses new ones; returns at once (each command is
    /// ended by the thread that waits for it).
    void end();
    bool ended() const { return ended_; }

    std::chrono::milliseconds timeout() const { return timeout_; }

    static constexpr std::size_t defaultKeep = std::size_t{1024} * 1024;

private:
    class Child;

    std::chrono::milliseconds grace_;
    std::chrono::milliseconds timeout_;
    std::atomic<bool> ended_{false};
    // Readable once end() has run, and never drained: every wait of every command sees it.
    OwnedFd endRead_;
    OwnedFd endWrite_;
};

}  // namespace tvpolicy::cli
