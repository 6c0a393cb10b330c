#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "agent/AgentRuntime.h"
#include "process/CommandGroups.h"

namespace tvpolicy::cli::agent {

/// Runs the calls that nothing can interrupt (a DNS lookup, a policy run, an address renewal, a
/// D-Bus call) on a thread of their own while the agent waits for them or for a stop, so that a
/// stop never waits on one.
///
/// On a stop the commands they started are ended (see CommandGroups) and the call gets `grace`
/// to return. When it has not by then, `abandon` runs with what was under way, and it must not
/// return: the program ends there, leaving that thread to the process's exit instead of
/// unwinding what the call still uses. A call never writes the agent's state: only the thread
/// that waits does.
class BlockingCalls {
public:
    using Abandon = std::function<void(const std::string& what)>;

    BlockingCalls(AgentSignals& signals, CommandGroups& commands, Abandon abandon,
                  std::chrono::milliseconds grace = std::chrono::milliseconds(500));

    /// What `work` returned; nothing when a stop came first or while it ran (a result reached
    /// while commands were being ended cannot be trusted). `what` names it for the log ("the
    /// policy run"). An exception of `work` is thrown again here.
    template <typename Work>
    auto run(const std::string& what, Work&& work) -> std::optional<decltype(work())>
    {
        std::optional<decltype(work())> result;
        if (!perform(what, [&result, &work] { result.emplace(work()); })) {
            return std::nullopt;
        }
        return result;
    }

    /// The agent has been asked to stop.
    bool stopped() const { return signals_.stopFlag(); }

private:
    bool perform(const std::string& what, std::function<void()> work);

    AgentSignals& signals_;
    CommandGroups& commands_;
    Abandon abandon_;
    std::chrono::milliseconds grace_;
};

}  // namespace tvpolicy::cli::agent
