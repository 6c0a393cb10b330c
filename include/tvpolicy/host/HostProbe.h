#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/export.h>
#include <tvpolicy/host/NameServer.h>

namespace tvpolicy {

/// Everything the library learns from, or asks of, the operating system goes through a host
/// probe. The checks and documents hold the rules; a probe only reads raw values (and runs the
/// few commands the library issues).
///
/// The current probe is the real backend of this operating system unless a ScopedHost swaps in
/// another: an embedder may describe a host of its own (for example to evaluate a policy
/// against another machine's facts) with DescribedHostProbe, as `tvpolicy run --host` does.
///
/// Values are raw: the library strips what it needs to strip (trailing newlines of command
/// output, the domain part of a node name), so a described host may hand over text exactly as
/// a system tool would print it.
class TVPOLICY_API HostProbe {
public:
    /// One entry of the process table.
    struct ProcessEntry {
        long pid = 0;
        /// The kernel's short command name (truncated by the kernel: 15 characters on Linux).
        std::string shortName;
        /// The full path of the executable; absent when it cannot be read (a process of
        /// another user without privilege, a kernel thread, a zombie).
        std::optional<std::string> executablePath;
        /// The path exists but was withheld for want of privilege (a process of another user):
        /// the table is partial for whoever matches processes by path.
        bool executableWithheld = false;
    };

    /// The maker's identity of the hardware. A field is absent when the host does not record
    /// it or it cannot be read; present but empty is a recorded empty value.
    struct HardwareIdentity {
        std::optional<std::string> manufacturer;
        std::optional<std::string> productName;
        std::optional<std::string> version;
        std::optional<std::string> uuid;
        std::optional<std::string> serialNumber;
    };

    /// The host's record of installed applications, as its own database or tool gives it.
    struct ApplicationListing {
        enum class Format {
            None,          ///< the host has no source
            PropertyList,  ///< the system profiler's XML property list of applications
            DpkgStatus,    ///< Debian's package status database (/var/lib/dpkg/status)
            RpmQuery,      ///< lines of name, a tab and version, as an rpm query prints them
        };
        Format format = Format::None;
        std::string text;
    };

    virtual ~HostProbe();

    /// Where a fixed system path (such as /Library/Receipts/) is found on this host. The real
    /// backend answers the path itself; a described host may map it into a folder of its own.
    virtual std::string systemPath(const std::string& path) const = 0;

    /// The operating system's product version ("10.6.8", "12"); empty when unknown.
    virtual std::string osProductVersion() const = 0;
    /// The operating system's product name ("Mac OS X", "Debian GNU/Linux"); empty when unknown.
    virtual std::string osProductName() const = 0;
    /// The node name as the kernel reports it, possibly with a domain ("alpha.lan").
    virtual std::string nodeName() const = 0;
    /// The machine's processor architecture as the kernel reports it ("x86_64").
    virtual std::string machineArchitecture() const = 0;
    /// Manufacturer, product, version, UUID and serial number of the hardware.
    virtual HardwareIdentity hardwareIdentity() const = 0;

    /// The whole process table, read afresh. A process that ends while the table is read is
    /// left out; the order is the system's.
    virtual std::vector<ProcessEntry> processTable() const = 0;

    /// The shell command that empties this host's DNS resolver cache, or empty when the host
    /// offers none (no caching resolver runs, or the OS is too old to have a tool for it).
    virtual std::string dnsFlushCommand() const = 0;

    /// Runs `command` through the shell and returns what it printed on standard output, read in
    /// pieces of at most `bufferSize` - 1 bytes up to the end (as getOutputFromCommand does);
    /// empty when no shell could be started.
    virtual std::string commandOutput(const std::string& command, unsigned long bufferSize) = 0;

    /// Runs `command` through the shell without reading its output and waits for it. Returns
    /// the command's wait status, or 0 when no shell could be started.
    virtual int runShellCommand(const std::string& command) = 0;

    /// Opens `url` in the user's browser; unchecked, returns at once when nothing opens it.
    virtual void openURL(const std::string& url) = 0;

    /// One DNS query for `name`, record type `type` (33 SRV, 16 TXT ...), class IN, sent to
    /// `server` when given, else to the system's name servers. The answer message as it came
    /// (the library parses it), or a failure whose code, a DnsFailure, says why there is none:
    /// no such name, no record of the type, a refusal, or no answer within about five seconds.
    virtual Result<std::vector<unsigned char>> dnsQuery(const std::string& name, int type,
                                                        const std::optional<NameServer>& server) const = 0;
    /// The first domain of the resolver's search list, which completes short names; empty
    /// when there is none.
    virtual std::string dnsDefaultDomain() const = 0;
    /// The record of installed applications, read afresh; Format::None (what this base class
    /// answers) when the host has none.
    virtual ApplicationListing applicationListing() const;

    /// How many processes there are, and how many of them withhold their executable's path.
    struct ProcessCounts {
        std::size_t total = 0;
        std::size_t withheld = 0;
    };
    /// The counts of the process table, read afresh: from processTable(), or by the system's
    /// backend from only what the counts need; from the reading of a ProcessTableSnapshot
    /// alive on this thread, when there is one.
    ProcessCounts processCounts() const;

    /// Whether a process runs whose executable path can be read and whose short name, or the
    /// file name of whose executable, is `name`: looked up in processTable(), or by the system's
    /// backend reading of each process only what decides it, up to the first match; from the
    /// reading of a ProcessTableSnapshot alive on this thread, when there is one.
    bool runsProcessNamed(const std::string& name) const;
};

/// The probe in use on this thread's process: the real backend unless a ScopedHost is alive.
TVPOLICY_API HostProbe& currentHost();

/// The real backend of this operating system.
TVPOLICY_API HostProbe& systemHost();

/// Makes `probe` the current probe for its lifetime, then restores the previous one. Guards
/// nest; swapping is not meant to race with checks running on other threads.
class TVPOLICY_API ScopedHost {
public:
    explicit ScopedHost(HostProbe& probe);
    ~ScopedHost();
    ScopedHost(const ScopedHost&) = delete;
    ScopedHost& operator=(const ScopedHost&) = delete;

private:
    HostProbe* previous_;
};

}  // namespace tvpolicy
