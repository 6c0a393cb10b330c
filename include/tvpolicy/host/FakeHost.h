#pragma once

#include <map>
#include <string>
#include <vector>

#include <tvpolicy/export.h>
#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// A described host: every fact is a plain field that the caller sets, and every command the
/// library issues is recorded instead of run. Used with ScopedHost to run checks against exact
/// facts.
class TVPOLICY_API FakeHost : public HostProbe {
public:
    /// Fixed system paths mapped by prefix: {"/Library/Receipts/", "/tmp/x/receipts/"} sends
    /// "/Library/Receipts/A.pkg" to "/tmp/x/receipts/A.pkg". The longest matching prefix
    /// wins; an unmapped path is answered unchanged. What follows the prefix never climbs out
    /// of its folder: "/Library/../../etc" with {"/", "/tmp/x/"} gives "/tmp/x/etc". Map ""
    /// as well to keep relative paths inside a folder too.
    std::map<std::string, std::string> pathMap;

    std::string productVersion;       ///< answered by osProductVersion(), as a tool prints it
    std::string productName;          ///< answered by osProductName()
    std::string node;                 ///< answered by nodeName()
    std::string architecture;         ///< answered by machineArchitecture()
    HardwareIdentity hardware;        ///< answered by hardwareIdentity()
    std::vector<ProcessEntry> processes;  ///< answered by processTable()
    std::string flushCommand;         ///< answered by dnsFlushCommand()

    int commandStatus = 0;                 ///< what runShellCommand returns
    /// What commandOutput answers for each command; a command not listed prints nothing.
    std::map<std::string, std::string> commandOutputs;
    /// Every command given to runShellCommand or commandOutput, in order; none is run.
    std::vector<std::string> commandsRun;
    std::vector<std::string> openedURLs;   ///< every URL given to openURL, in order
    ApplicationListing applications;       ///< answered by applicationListing()

    /// Answer messages of dnsQuery by query name and type; an unlisted query gets none.
    std::map<std::pair<std::string, int>, std::vector<unsigned char>> dnsAnswers;
    std::string searchDomain;              ///< answered by dnsDefaultDomain()
    /// Every dnsQuery as "name type" plus " @address:port" when a server was given, in order.
    mutable std::vector<std::string> dnsQueries;

    std::string systemPath(const std::string& path) const override;
    std::string osProductVersion() const override;
    std::string osProductName() const override;
    std::string nodeName() const override;
    std::string machineArchitecture() const override;
    HardwareIdentity hardwareIdentity() const override;
    std::vector<ProcessEntry> processTable() const override;
    std::string dnsFlushCommand() const override;
    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    int runShellCommand(const std::string& command) override;
    void openURL(const std::string& url) override;
    std::vector<unsigned char> dnsQuery(const std::string& name, int type,
                                        const std::optional<NameServer>& server) const override;
    std::string dnsDefaultDomain() const override;
    ApplicationListing applicationListing() const override;
};

}  // namespace tvpolicy
