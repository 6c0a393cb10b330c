#include "host/probe/linux/LinuxNetworkProbe.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <linux/if_arp.h>
#include <unistd.h>

#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/host/HostProbe.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/parse/NetText.h"
#include "host/parse/ProcText.h"
#include "host/parse/RouteInterfaces.h"
#include "host/probe/linux/NetworkManager.h"
#include "host/probe/linux/RouteInterfaceDump.h"

namespace tvpolicy {

namespace {

using Fd = tvpolicy::OwnedFd;

// Reads a small sysfs attribute below `dir`; false (with errno) when it cannot be read.
bool readAttribute(int dir, const char* name, std::string& text)
{
    Fd fd(::openat(dir, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    return fd.valid() && tvpolicy::readBounded(fd.get(), 256, text) != tvpolicy::ReadEnd::Failed;
}

bool exists(int dir, const std::string& name) { return ::faccessat(dir, name.c_str(), F_OK, 0) == 0; }

// Whether the sysfs folder `folder` below `dir` ("" for `dir` itself, else ending in '/') is
// a Wi-Fi interface's: it has the wireless extensions' folder or the link to its wireless PHY.
bool wirelessFolder(int dir, const std::string& folder)
{
    return exists(dir, folder + "wireless") || exists(dir, folder + "phy80211");
}

// A name that can be an entry of /sys/class/net.
bool folderName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos;
}

// The interface's folder in /sys/class/net, or -1 with errno set.
int interfaceFolder(const std::string& name)
{
    if (!folderName(name)) {
        errno = ENODEV;
        return -1;
    }
    return ::open(("/sys/class/net/" + name).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

std::string shellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::string resolvConf()
{
    std::string path = currentHost().systemPath("/etc/resolv.conf");
    Fd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    std::string text;
    if (fd.valid()) {
        tvpolicy::readBounded(fd.get(), std::size_t{64} * 1024, text);
    }
    return text;
}

// The host's DNS domains from the first source that names any: systemd-resolved, else the
// domain-name option of NetworkManager's DHCP lease, else resolv.conf. A source that is not on
// the bus, answers with an error or in another shape, or names no domain passes to the next.
parse::ResolverDomains hostDomains()
{
    NetworkManagerClient client;
    std::vector<std::string> found = client.resolvedDomains().value_or(std::vector<std::string>());
    found.erase(std::remove(found.begin(), found.end(), std::string()), found.end());
    if (found.empty()) {
        // Some DHCP servers put several domains into the option, separated by blanks.
        std::string dhcp = client.dhcpDomainName();
        std::string blanks = " \t\r\n";
        split(dhcp, blanks, found);
        found.erase(std::remove(found.begin(), found.end(), std::string()), found.end());
    }
    if (found.empty()) {
        return parse::resolvConfDomains(resolvConf());
    }
    parse::ResolverDomains domains;
    domains.domain = found.front();
    domains.search = std::move(found);
    return domains;
}

}  // namespace

std::optional<std::vector<NetworkProbe::AddressEntry>> LinuxNetworkProbe::interfaceAddresses() const
{
    // The links and addresses come from netlink; only whether a link is Wi-Fi is not there.
    std::optional<parse::RouteDump> dump = probe::dumpRouteInterfaces();
    if (!dump) {
        return std::nullopt;
    }
    Fd net(::open("/sys/class/net", O_PATH | O_DIRECTORY | O_CLOEXEC));
    return parse::routeInterfaceEntries(*dump, [&net](const std::string& name) {
        return net.valid() && folderName(name) && wirelessFolder(net.get(), name + "/");
    });
}

std::optional<NetworkProbe::Hardware> LinuxNetworkProbe::interfaceHardware(const std::string& name) const
{
    Fd dir(interfaceFolder(name));
    if (dir.get() < 0) {
        // Gone since it was listed, or never there: no hardware, which is not a failure.
        if (errno == ENOENT || errno == ENODEV || errno == ENOTDIR) {
            return Hardware();
        }
        return std::nullopt;
    }
    Hardware hardware;
    std::string text;
    if (readAttribute(dir.get(), "address", text)) {
        hardware.macAddress = parse::sysfsMacAddress(text);
    }
    if (!readAttribute(dir.get(), "type", text)) {
        hardware.medium = "Unknown";
    } else if (wirelessFolder(dir.get(), "")) {
        hardware.medium = "Wireless";
    } else if (parse::sysfsValue(text) == std::to_string(ARPHRD_ETHER)) {
        hardware.medium = "Wired";
    }
    return hardware;
}

NetworkProbe::LinkState LinuxNetworkProbe::linkState(const std::string& name) const
{
    LinkState state;
    Fd dir(interfaceFolder(name));
    if (dir.get() < 0) {
        state.error = errno;
        return state;
    }
    std::string operstate;
    if (!readAttribute(dir.get(), "operstate", operstate)) {
        state.error = errno;
        return state;
    }
    operstate = parse::sysfsValue(operstate);
    // The carrier cannot be read while the interface is down (EINVAL): no link then.
    std::string carrier;
    bool carrierUp = readAttribute(dir.get(), "carrier", carrier) && parse::sysfsValue(carrier) == "1";
    state.active = carrierUp && (operstate == "up" || operstate == "unknown");
    return state;
}

std::string LinuxNetworkProbe::dnsSuffix() const { return hostDomains().domain; }

std::vector<std::string> LinuxNetworkProbe::dnsSearchDomains() const { return hostDomains().search; }

std::string LinuxNetworkProbe::bssidCommand() const
{
    return "for i in $(iw dev 2>/dev/null | awk '$1 == \"Interface\" { print $2 }'); do iw dev \"$i\" link 2>/dev/null; "
           "done | awk '/^Connected to/ { printf \"%s\", $3; exit }'";
}

bool LinuxNetworkProbe::renewAddress(const std::string& name)
{
    NetworkManagerClient client;
    if (client.reactivate(name)) {
        return true;
    }
    // The shell says so when networkctl succeeded: a shell that could not be started says
    // nothing, where its bare status (0 then) would read as success.
    return currentHost().commandOutput("networkctl renew " + shellQuoted(name) + " >/dev/null 2>&1 && echo renewed",
                                       64) == "renewed\n";
}

NetworkProbe::GuestTools LinuxNetworkProbe::guestTools() const
{
    return {"VBoxSVC", "/usr/bin/VBoxManage", "vmware-vmx", "/usr/bin/vmrun"};
}

std::string LinuxNetworkProbe::commandOutput(const std::string& command, unsigned long bufferSize)
{
    return getOutputFromCommand(command, bufferSize);
}

std::optional<NetworkProbe::WifiStatus> LinuxNetworkProbe::wifiStatus() const
{
    NetworkManagerClient client;
    auto device = client.wifiDevice();
    if (!device) {
        return std::nullopt;
    }
    return device->second;
}

Result<NetworkProbe::WifiScan> LinuxNetworkProbe::wifiScan(const std::string& ssid)
{
    NetworkManagerClient client;
    return client.scan(ssid);
}

Result<void> LinuxNetworkProbe::wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise)
{
    NetworkManagerClient client;
    return client.associate(network, password, enterprise);
}

std::vector<NetworkProbe::WifiSettings> LinuxNetworkProbe::wifiStoredProfiles() const
{
    NetworkManagerClient client;
    std::vector<WifiSettings> profiles;
    for (NetworkManagerClient::StoredWifi& stored : client.storedWifi()) {
        profiles.push_back(std::move(stored.settings));
    }
    return profiles;
}

Result<void> LinuxNetworkProbe::wifiStoreProfile(const WifiSettings& settings)
{
    NetworkManagerClient client;
    return client.store(settings);
}

NetworkProbe& systemNetwork()
{
    static LinuxNetworkProbe probe;
    return probe;
}

}  // namespace tvpolicy
