#pragma once

#include <map>
#include <string>
#include <vector>

#include <tvpolicy/export.h>
#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// A described host: every fact is a plain field that the caller sets, and no command the
/// library issues is run (each answers from `commandStatus` and `commandOutputs`). Installed
/// with ScopedHost, checks run against these facts instead of this computer's: `tvpolicy run
/// --host` evaluates a policy for another machine with it.
class TVPOLICY_API DescribedHostProbe : public HostProbe {
public:
    /// Fixed system paths mapped by prefix: {"/Library/Receipts/", "/tmp/x/receipts/"} sends
    /// "/Library/Receipts/A.pkg" to "/tmp/x/receipts/A.pkg". The longest matching prefix
    /// wins; an unmapped path is answered unchanged. What follows the prefix never climbs out
    /// of its folder: "/Library/../../etc" with {"/", "/tmp/x/"} gives "/tmp/x/etc". Map ""
    /// as well to keep relative paths inside a folder too.
    std::map<std::string, std::string> pathMap;

    std::string productVersion;           ///< answered by osProductVersion(), as a tool prints it
    std::string productName;              ///< answered by osProductName()
    std::string node;                     ///< answered by nodeName()
    std::string architecture;             ///< answered by machineArchitecture()
    HardwareIdentity hardware;            ///< answered by hardwareIdentity()
    std::vector<ProcessEntry> processes;  ///< answered by processTable()
    std::string flushCommand;             ///< answered by dnsFlushCommand()

    int commandStatus = 0;  ///< what runShellCommand returns
    /// What commandOutput answers for each command; a command not listed prints nothing.
    std::map<std::string, std::string> commandOutputs;
    ApplicationListing applications;  ///< answered by applicationListing()

    /// Answer messages of dnsQuery by query name and type; an unlisted query gets no answer.
    std::map<std::pair<std::string, int>, std::vector<unsigned char>> dnsAnswers;
    std::string searchDomain;  ///< answered by dnsDefaultDomain()

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
    /// Opens nothing: a described host has no browser.
    void openURL(const std::string& url) override;
    Result<std::vector<unsigned char>> dnsQuery(const std::string& name, int type,
                                                const std::optional<NameServer>& server) const override;
    std::string dnsDefaultDomain() const override;
    ApplicationListing applicationListing() const override;
};

}  // namespace tvpolicy
