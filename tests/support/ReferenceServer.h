#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/TempDir.h"

namespace testing_support {

/// The agent's reference server (examples/server/server.py) on a loopback port, with its request
/// log and stored results in a folder of its own. Stopped when the object ends.
class ReferenceServer {
public:
    /// `arguments` go to the server after its own (--port 0 --log ... --results-dir ...).
    /// `prefix` runs it through another program first (such as `ip netns exec NAME`).
    explicit ReferenceServer(const std::vector<std::string>& arguments, const std::vector<std::string>& prefix = {});

    bool started() const { return port_ != 0; }
    int port() const { return port_; }
    /// "http://127.0.0.1:PORT" (https with --cert).
    const std::string& url() const { return url_; }

    /// Every request it has logged, oldest first.
    std::vector<nlohmann::json> requests() const;
    /// "METHOD /path" of each request.
    std::vector<std::string> requestLines() const;
    /// Waits until `count` requests for `path` have been logged; false when they did not come in time.
    bool waitForRequests(const std::string& path, std::size_t count, std::chrono::milliseconds timeout) const;
    /// Changes the failures, stalls and endless answers while it runs (its /control endpoint).
    bool control(const nlohmann::json& change) const;
    /// The results documents it stored, in the order they arrived.
    std::vector<std::string> storedResults() const;
    const std::filesystem::path& folder() const { return dir_.path(); }

private:
    TempDir dir_;
    std::unique_ptr<ChildProcess> process_;
    int port_ = 0;
    std::string url_;
    std::vector<std::string> prefix_;
};

}  // namespace testing_support
