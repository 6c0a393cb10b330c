#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli::agent {

/// Results not yet taken by the server, waiting in the state directory.
struct PendingResults {
    std::string name;  ///< the file's name; names sort oldest first
    std::string url;   ///< where they go
    std::string body;  ///< the results document
};

/// The agent's state directory: the results of every finished cycle until the server takes
/// them (at most `maxPending`, the oldest dropped first) and the last verdict. Every file is
/// written whole or not at all.
class AgentState {
public:
    static constexpr std::size_t maxPending = 50;

    explicit AgentState(std::string directory);

    /// Creates the directory (owner only) when it is missing.
    Result<void> prepare() const;

    /// Keeps results for `url`; the oldest beyond maxPending go.
    Result<void> queue(const std::string& url, const std::string& body);
    /// What waits, oldest first.
    std::vector<PendingResults> pending() const;
    void forget(const std::string& name) const;

    Result<void> saveVerdict(const nlohmann::ordered_json& verdict) const;
    std::optional<nlohmann::ordered_json> lastVerdict() const;

    const std::string& directory() const { return directory_; }

private:
    std::string pendingDir() const;

    std::string directory_;
    unsigned sequence_ = 0;
};

}  // namespace tvpolicy::cli::agent
