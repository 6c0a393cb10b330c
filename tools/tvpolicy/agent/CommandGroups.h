#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include <sys/types.h>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli::agent {

/// Runs the shell commands of checks (`sh -c COMMAND`), each in a process group of its own with
/// standard input from /dev/null, so that what a command starts can be ended with it.
///
/// end() ends every command under way, on whichever thread it runs: its whole group gets TERM,
/// then KILL once the shell has gone or `grace` has passed. From then on no command starts.
/// All members are safe to call from any thread.
class CommandGroups {
public:
    explicit CommandGroups(std::chrono::milliseconds grace = std::chrono::milliseconds(200));
    CommandGroups(const CommandGroups&) = delete;
    CommandGroups& operator=(const CommandGroups&) = delete;

    /// What the command printed on standard output, read to the end (beyond `keep` bytes it is
    /// read and dropped); nothing when no shell could start or the command was ended.
    std::optional<std::string> output(const std::string& command, std::size_t keep = defaultKeep);
    /// Runs the command with its standard output on /dev/null and waits for it: its wait
    /// status, or nothing when no shell could start or the command was ended.
    std::optional<int> status(const std::string& command);

    /// Ends the commands under way and refuses new ones; returns at once (each command is
    /// ended by the thread that waits for it).
    void end();
    bool ended() const { return ended_; }

    static constexpr std::size_t defaultKeep = std::size_t{1024} * 1024;

private:
    class Child;

    std::optional<int> run(const std::string& command, std::string* output, std::size_t keep);

    std::chrono::milliseconds grace_;
    std::atomic<bool> ended_{false};
    // Readable once end() has run, and never drained: every wait of every command sees it.
    OwnedFd endRead_;
    OwnedFd endWrite_;
};

}  // namespace tvpolicy::cli::agent
