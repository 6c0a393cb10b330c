// The adapters of virtual machines that run on this host: VirtualBox through VBoxManage and
// VMware through vmrun and the guests' VMX files, each run as the user who runs the machines.
#include <tvpolicy/host/NetworkInterface.h>

#include <cerrno>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>
#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/NetworkProbe.h>

#include "base/LogLine.h"
#include "host/parse/GuestTools.h"

namespace com::torvane::api {

namespace {

const std::string listDelimiters = " \t\n\r";

std::vector<std::string> words(std::string text)
{
    std::vector<std::string> out;
    std::string delimiters = listDelimiters;
    split(text, delimiters, out);
    return out;
}

// A tool's path as one shell word: quoted only when it holds something the shell would read.
std::string shellWord(const std::string& path)
{
    if (path.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/._+-") ==
        std::string::npos) {
        return path;
    }
    std::string quoted = "'";
    for (char c : path) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

// The ids of the users that run a process whose short name is `process`.
std::vector<std::string> usersRunning(tvpolicy::NetworkProbe& network, const std::string& process)
{
    return words(
        network.commandOutput("ps -A -o \"uid,comm\" | grep \"" + process + "$\" | sort -u | awk '{print $1}'", 256));
}

std::string asUser(const std::string& uid) { return "sudo -u \\#" + uid + " "; }

NetworkInterface* guest(const std::string& mac, const std::string& kind, std::size_t machine, std::size_t adapter)
{
    auto* interface = new NetworkInterface();
    interface->setMACAddress(mac);
    interface->setDescription(kind + " Guest: " + mac);
    interface->setName(kind + " Guest" + std::to_string(machine) + ":" + std::to_string(adapter));
    interface->setMedium("VirtualGuest");
    interface->setVirtualGuest(true);
    interface->setVMName(kind + " Guest" + std::to_string(machine));
    return interface;
}

void store(NetworkInterfaceMap& interfaces, const std::string& key, NetworkInterface* interface)
{
    NetworkInterface*& slot = interfaces[key];
    delete slot;
    slot = interface;
}

}  // namespace

void NetworkInterface::getVBoxGuestInterfaces(NetworkInterfaceMap& interfaces)
{
    tvpolicy::NetworkProbe& network = tvpolicy::currentNetwork();
    tvpolicy::NetworkProbe::GuestTools tools = network.guestTools();
    std::string manage = shellWord(tvpolicy::currentHost().systemPath(tools.vboxManage));
    for (const std::string& uid : usersRunning(network, tools.vboxServiceProcess)) {
        std::string machines = network.commandOutput(asUser(uid) + manage + " list runningvms", 8192);
        std::size_t machineIndex = 0;
        for (const std::string& machine : tvpolicy::parse::vboxMachineIds(machines)) {
            std::string info = network.commandOutput(
                asUser(uid) + manage + " showvminfo --machinereadable " + machine + "| /usr/bin/grep ^macaddress",
                8192);
            std::size_t adapterIndex = 0;
            for (const std::string& token : words(info)) {
                std::string raw = tvpolicy::parse::vboxQuotedValue(token);
                tvi::LogLine(std::clog) << "MAC = " << raw;
                if (raw.empty()) {
                    continue;
                }
                std::string mac = tvpolicy::parse::vboxFormattedMAC(raw);
                tvi::LogLine(std::clog) << "Formatted MAC = " << mac;
                // Keyed by the address as VBoxManage prints it, not by the formatted MAC.
                store(interfaces, raw, guest(mac, "VirtualBox", machineIndex, adapterIndex));
                ++adapterIndex;
            }
            ++machineIndex;
        }
    }
}

void NetworkInterface::getVMwareGuestInterfaces(NetworkInterfaceMap& interfaces)
{
    tvpolicy::NetworkProbe& network = tvpolicy::currentNetwork();
    tvpolicy::NetworkProbe::GuestTools tools = network.guestTools();
    std::string vmrun = shellWord(tvpolicy::currentHost().systemPath(tools.vmrun));
    for (const std::string& uid : usersRunning(network, tools.vmwareServiceProcess)) {
        std::string list = network.commandOutput(asUser(uid) + vmrun + " -T ws list", 8192);
        if (list.find("VIX_SERVICEPROVIDER_VMWARE_WORKSTATION") != std::string::npos) {
            list = network.commandOutput(asUser(uid) + vmrun + " -T player list", 8192);
        }
        std::size_t machineIndex = 0;
        for (const std::string& path : tvpolicy::parse::vmrunPaths(list)) {
            std::vector<std::string> macs;
            getAddressesFromVMXFile(path, macs);
            if (macs.empty()) {
                continue;  // the list's header line, or a machine without adapters
            }
            std::size_t adapterIndex = 0;
            for (std::string mac : macs) {
                normalizeMAC(mac);
                store(interfaces, mac, guest(mac, "VMware", machineIndex, adapterIndex));
                ++adapterIndex;
            }
            ++machineIndex;
        }
    }
}

void getAddressesFromVMXFile(const std::string& path, std::vector<std::string>& macs)
{
    // Opened without blocking, so a FIFO named in the list cannot stall the inventory.
    tvpolicy::OwnedFd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!fd) {
        return;
    }
    // VMX files are a few kilobytes; anything far beyond that is not one.
    constexpr std::size_t limit = std::size_t{4} * 1024 * 1024;
    std::string text;
    tvpolicy::readBounded(fd.get(), limit, text);
    std::vector<tvpolicy::parse::VmxEntry> entries = tvpolicy::parse::vmxEntries(text);
    for (const auto& [key, value] : entries) {
        tvi::LogLine(std::clog) << "VMX: [" << key << "]=[" << value << "]";
    }
    for (std::string& address : tvpolicy::parse::vmxAddresses(entries)) {
        macs.push_back(std::move(address));
    }
}

}  // namespace com::torvane::api
