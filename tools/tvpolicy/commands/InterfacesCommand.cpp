// tvpolicy interfaces [--xml] [--json] [--no-guests]: this computer's network interfaces (and
// its virtual-machine guests' adapters) as the agent reports them.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/NetworkInterfaceXML.h>

#include "commands/Command.h"
#include "io/Joined.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::api::NetworkInterface;
using com::torvane::api::NetworkInterfaceMap;
using Json = nlohmann::ordered_json;

std::vector<std::string> ipv4Of(const NetworkInterface& interface)
{
    std::vector<std::string> addresses;
    interface.getIPv4Addresses(addresses);
    return addresses;
}

std::vector<std::string> ipv6Of(const NetworkInterface& interface)
{
    std::vector<std::string> addresses;
    interface.getIPv6Addresses(addresses);
    return addresses;
}

Json interfaceJson(const std::string& key, const NetworkInterface& i)
{
    // Member by member: from a braced list each member is first built as a two-element array and
    // then copied, which at a hundred interfaces cost more than reading them.
    Json entry(Json::value_t::object);
    entry["key"] = key;
    entry["name"] = i.getName();
    entry["mac"] = i.getMACAddress();
    entry["ipv4"] = ipv4Of(i);
    entry["ipv6"] = ipv6Of(i);
    entry["description"] = i.getDescription();
    entry["medium"] = i.getMedium();
    entry["essid"] = i.getESSID();
    entry["bssid"] = i.getBSSID();
    entry["dnsSuffix"] = i.getDNSSuffix();
    entry["vmName"] = i.getVMName();
    entry["virtualGuest"] = i.isVirtualGuest();
    entry["up"] = i.isUp();
    return entry;
}

void printTable(std::ostream& out, const NetworkInterfaceMap& interfaces)
{
    std::vector<std::vector<std::string>> rows = {
        {"KEY", "NAME", "MAC", "MEDIUM", "STATE", "ADDRESSES", "ESSID/BSSID", "VM"}};
    for (const auto& [key, i] : interfaces) {
        std::vector<std::string> addresses = ipv4Of(*i);
        for (const std::string& address : ipv6Of(*i)) {
            addresses.push_back(address);
        }
        std::string wifi = i->getESSID().empty() && i->getBSSID().empty() ? "-" : i->getESSID() + "/" + i->getBSSID();
        rows.push_back({key, i->getName(), i->getMACAddress().empty() ? "-" : i->getMACAddress(),
                        i->getMedium().empty() ? "-" : i->getMedium(), i->isUp() ? "UP" : "DOWN",
                        addresses.empty() ? "-" : joined(addresses, ","), wifi,
                        i->isVirtualGuest() ? i->getVMName() : "-"});
    }
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const auto& row : rows) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            widths[c] = std::max(widths[c], row[c].size());
        }
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t c = 0; c < row.size(); ++c) {
            line += row[c];
            if (c + 1 < row.size()) {
                line += std::string(widths[c] - row[c].size() + 2, ' ');
            }
        }
        out << line << '\n';
    }
}

// The inventory for the length of the command.
struct Inventory {
    explicit Inventory(bool guests)
    {
        NetworkInterface::getInstances(interfaces);
        if (guests) {
            NetworkInterface::getVirtualGuestInterfaces(interfaces);
        }
    }
    ~Inventory() { NetworkInterface::freeInstances(interfaces); }
    Inventory(const Inventory&) = delete;
    Inventory& operator=(const Inventory&) = delete;

    NetworkInterfaceMap interfaces;
};

CommandAction setupInterfaces(CLI::App& app)
{
    struct Options {
        bool xml = false;
        bool json = false;
        bool noGuests = false;
    };
    auto options = std::make_shared<Options>();
    auto* xml = app.add_flag("--xml", options->xml, "Print the interface report XML the agent sends to the server");
    app.add_flag("--json", options->json, "Print the interfaces as a JSON array")->excludes(xml);
    app.add_flag("--no-guests", options->noGuests, "Leave out the adapters of virtual-machine guests");
    return [options](Console& console) {
        if (options->xml) {
            console.out() << com::torvane::api::getNetworkInterfacesXML(options->noGuests ? "NONE" : "ALL") << '\n';
            return exitPassed;
        }
        Inventory inventory(!options->noGuests);
        if (options->json) {
            Json list = Json::array();
            list.get_ref<Json::array_t&>().reserve(inventory.interfaces.size());
            for (const auto& [key, interface] : inventory.interfaces) {
                list.push_back(interfaceJson(key, *interface));
            }
            console.out() << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
        } else {
            printTable(console.out(), inventory.interfaces);
        }
        return exitPassed;
    };
}

const bool registered = registerCommand(
    {"interfaces", "Print this computer's network interfaces and its guests' adapters (table, --xml or --json)", 45,
     &setupInterfaces});

}  // namespace
}  // namespace tvpolicy::cli
