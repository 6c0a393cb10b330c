#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/host/DescribedHostProbe.h>

namespace testing_support {

/// A described host that also keeps what the library asked of it: every command (run or read),
/// every URL opened and every DNS query, in order. None is carried out.
class RecordingHost : public tvpolicy::DescribedHostProbe {
public:
    /// Every command given to runShellCommand or commandOutput.
    std::vector<std::string> commandsRun;
    /// Every URL given to openURL.
    std::vector<std::string> openedURLs;
    /// Every dnsQuery as "name type", plus " @address:port" when a server was given.
    mutable std::vector<std::string> dnsQueries;

    std::string commandOutput(const std::string& command, unsigned long bufferSize) override
    {
        commandsRun.push_back(command);
        return DescribedHostProbe::commandOutput(command, bufferSize);
    }

    int runShellCommand(const std::string& command) override
    {
        commandsRun.push_back(command);
        return DescribedHostProbe::runShellCommand(command);
    }

    void openURL(const std::string& url) override { openedURLs.push_back(url); }

    tvpolicy::Result<std::vector<unsigned char>> dnsQuery(
        const std::string& name, int type, const std::optional<tvpolicy::NameServer>& server) const override
    {
        std::string query = name + " " + std::to_string(type);
        if (server) {
            query += " @" + server->address + ":" + std::to_string(server->port);
        }
        dnsQueries.push_back(query);
        return DescribedHostProbe::dnsQuery(name, type, server);
    }
};

}  // namespace testing_support
