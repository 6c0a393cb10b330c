#pragma once

#include <string>

#include <tvpolicy/agent/BasicHttpRequest.h>

#include "agent/AgentSettings.h"
#include "agent/AgentState.h"
#include "agent/BlockingCalls.h"
#include "io/Console.h"

namespace tvpolicy::cli::agent {

/// How a cycle ended.
enum class Outcome {
    passed,       ///< the policy ran and passed (or only audits)
    failed,       ///< the policy ran and failed
    nothingToDo,  ///< the server said there is nothing to scan
    unreached,    ///< no server answered
    cycleFailed,  ///< a server answered, but the cycle could not be completed
    authFailure,  ///< the server refused the login
    stopped,      ///< the agent was asked to stop before the cycle ended
};

struct CycleReport {
    Outcome outcome = Outcome::unreached;
    std::string scan;
    std::string message;        ///< why it did not pass, or what the server said
    bool renewAddress = false;  ///< the policy passed and asks for the addresses to be renewed
};

/// The report of a cycle that a stop ended while `what` was under way.
CycleReport stoppedDuring(const std::string& what, std::string scan = std::string());

/// One pass of the exchange with the server at `base` (ending in '/'): configuration,
/// connection test, login or status, the policy, its run and the reports, then the results
/// that earlier cycles could not deliver. Requests end early once a stop is asked for; the
/// policy run and the Wi-Fi join go through `calls`, and the results of a run that a stop cut
/// short are neither kept nor sent.
class AgentCycle {
public:
    AgentCycle(const AgentSettings& settings, AgentState& state, Console& console, BlockingCalls& calls);

    CycleReport run(const std::string& base);
    /// The scan under way, once the server has named it.
    const std::string& scan() const { return scan_; }

private:
    struct Answer;
    Answer get(const std::string& url);
    Answer remember(com::torvane::HttpTransfer transfer);
    Answer post(const std::string& url, const std::string& body, const std::string& contentType = std::string());
    std::string behind(const std::string& base, const std::string& url) const;
    CycleReport scanAndReport(const std::string& url, const std::string& scan, const std::string& uid);
    void deliverPending();

    const AgentSettings& settings_;
    AgentState& state_;
    Console& console_;
    BlockingCalls& calls_;
    std::string cookie_;
    std::string scan_;
};

}  // namespace tvpolicy::cli::agent
