#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/export.h>

namespace tvpolicy {

/// The facts that the posture checks (registerPostureTasks) read about a host's hardening:
/// service units, listening sockets, the packet filter, block devices under mounts, kernel
/// parameters and file ownership. It sits beside HostProbe and works the same way: the current
/// probe is this operating system's backend unless a ScopedPosture swaps in another, the backend
/// reads raw values only, and the checks hold the rules.
///
/// Paths are system paths: a backend opens them through currentHost().systemPath(), so a
/// described host that maps paths into a folder maps these reads too. Installed packages are
/// HostProbe::applicationListing().
///
/// Every answer is a Fact: a value, or why none could be read. This base class answers every
/// question with "not available on this system"; a backend overrides what its system offers.
///
///     tvpolicy::DescribedPosture facts;
///     facts.kernelParameters["net.ipv4.ip_forward"] = "0\n";
///     tvpolicy::ScopedPosture scoped(facts);
///     // KernelParameter checks now read the described value.
class TVPOLICY_API PostureProbe {
public:
    /// A value, or the reason there is none (never both).
    template <typename T>
    using Fact = Result<T>;

    /// A service manager's unit as the manager reports it.
    struct UnitState {
        std::string activeState;    ///< "active", "inactive", "failed" ...
        std::string unitFileState;  ///< "enabled", "disabled", "static" ...; empty when unknown
    };

    /// One socket that listens (TCP) or is bound and unconnected (UDP).
    struct ListeningSocket {
        std::string protocol;  ///< "tcp" or "udp"
        unsigned port = 0;
        bool ipv6 = false;
    };

    /// One base chain of the packet filter, as its ruleset lists it.
    struct FilterChain {
        std::string family;  ///< "ip", "ip6", "inet", "arp", "bridge", "netdev"
        std::string table;
        std::string name;
        std::string hook;    ///< "input", "output", "forward", "prerouting" ...
        std::string policy;  ///< "accept" or "drop"
        /// Some rule of the chain ends in a drop or reject verdict.
        bool dropsOrRejects = false;
    };

    /// A block device and the devices it is built on.
    struct BlockDevice {
        /// The device-mapper uuid ("CRYPT-LUKS2-..."); absent for a device that is not a
        /// device-mapper device.
        std::optional<std::string> deviceMapperUuid;
        /// The devices directly below it, as "major:minor".
        std::vector<std::string> below;
    };

    /// Owner, group and mode of a file.
    struct FileStatus {
        unsigned long uid = 0;
        unsigned long gid = 0;
        unsigned mode = 0;  ///< permission bits with set-id and sticky bits (mode & 07777)
        std::string owner;  ///< the user's name; empty when the user database has none
        std::string group;  ///< the group's name; empty when the group database has none
    };

    virtual ~PostureProbe();

    /// The state of a service unit by its full name ("ssh.service"); the error "not found"
    /// for a unit the manager does not know.
    virtual Fact<UnitState> unitState(const std::string& unit) const;
    /// Every socket of `protocol` ("tcp" or "udp") that listens, IPv4 and IPv6.
    virtual Fact<std::vector<ListeningSocket>> listeningSockets(const std::string& protocol) const;
    /// Every base chain of the packet filter; empty when no table has one.
    virtual Fact<std::vector<FilterChain>> packetFilter() const;
    /// The mount table in the format of /proc/self/mountinfo.
    virtual Fact<std::string> mountTable() const;
    /// The block device with this "major:minor" number.
    virtual Fact<BlockDevice> blockDevice(const std::string& majorMinor) const;
    /// The text of a kernel parameter by its dotted name ("net.ipv4.ip_forward"), as the
    /// kernel gives it (with its line end).
    virtual Fact<std::string> kernelParameter(const std::string& name) const;
    /// Owner, group and mode of the file at a system path, symbolic links followed.
    virtual Fact<FileStatus> fileStatus(const std::string& path) const;

protected:
    /// The reason given for a fact this system has no interface for.
    static std::string notAvailable() { return "not available on this system"; }
};

/// The posture probe in use: this system's backend unless a ScopedPosture is alive.
TVPOLICY_API PostureProbe& currentPosture();

/// The backend of this operating system.
TVPOLICY_API PostureProbe& systemPosture();

/// Makes `probe` the current posture probe for its lifetime, then restores the previous one.
/// Guards nest; swapping is not meant to race with checks running on other threads.
class TVPOLICY_API ScopedPosture {
public:
    explicit ScopedPosture(PostureProbe& probe);
    ~ScopedPosture();
    ScopedPosture(const ScopedPosture&) = delete;
    ScopedPosture& operator=(const ScopedPosture&) = delete;

private:
    PostureProbe* previous_;
};

/// A described host's posture: every fact is a plain field. A question about something not
/// described gets the answer a real system gives for it ("not found", no such parameter, not
/// mounted); files not listed in `files` are asked of this system's backend.
class TVPOLICY_API DescribedPosture : public PostureProbe {
public:
    std::map<std::string, UnitState> units;  ///< by full unit name
    std::vector<ListeningSocket> listening;
    std::vector<FilterChain> filterChains;
    std::string mounts;                                   ///< in the format of /proc/self/mountinfo
    std::map<std::string, BlockDevice> blockDevices;      ///< by "major:minor"
    std::map<std::string, std::string> kernelParameters;  ///< by dotted name
    std::map<std::string, FileStatus> files;              ///< by system path

    /// Adds `mountPoint` to `mounts` on a device of its own, placed on a dm-crypt device when
    /// `encrypted`.
    void addMount(const std::string& mountPoint, bool encrypted);

    Fact<UnitState> unitState(const std::string& unit) const override;
    Fact<std::vector<ListeningSocket>> listeningSockets(const std::string& protocol) const override;
    Fact<std::vector<FilterChain>> packetFilter() const override;
    Fact<std::string> mountTable() const override;
    Fact<BlockDevice> blockDevice(const std::string& majorMinor) const override;
    Fact<std::string> kernelParameter(const std::string& name) const override;
    Fact<FileStatus> fileStatus(const std::string& path) const override;
};

}  // namespace tvpolicy
