#include <tvpolicy/host/NetworkInterfaceXML.h>

#include <vector>

#include "host/CdataElement.h"

namespace com::torvane::api {

using tvpolicy::appendCdataElement;

std::string getNetworkInterfacesXML(std::string mode)
{
    NetworkInterfaceMap interfaces;
    NetworkInterface::getInstances(interfaces);
    if (mode != "NONE") {
        NetworkInterface::getVirtualGuestInterfaces(interfaces);
    }
    std::string xml = getNetworkInterfacesXML(interfaces);
    NetworkInterface::freeInstances(interfaces);
    return xml;
}

std::string getNetworkInterfacesXML(const NetworkInterfaceMap& interfaces)
{
    std::string xml;
    for (const auto& entry : interfaces) {
        xml += getNetworkInterfaceXML(entry.second);
    }
    return xml;
}

std::string getNetworkInterfaceXML(const NetworkInterface* interface)
{
    if (interface == nullptr || interface->getMACAddress().empty()) {
        return std::string();
    }
    std::string out = "<interface>";
    appendCdataElement(out, "mac", interface->getMACAddress());
    std::vector<std::string> addresses;
    interface->getIPv4Addresses(addresses);
    for (const std::string& address : addresses) {
        appendCdataElement(out, "ip", address);
    }
    interface->getIPv6Addresses(addresses);
    for (const std::string& address : addresses) {
        appendCdataElement(out, "ipv6", address);
    }
    appendCdataElement(out, "desc", interface->getDescription());
    appendCdataElement(out, "medium", interface->getMedium());
    appendCdataElement(out, "name", interface->getName());
    appendCdataElement(out, "suffix", interface->getDNSSuffix());
    if (!interface->getESSID().empty()) {
        appendCdataElement(out, "essid", interface->getESSID());
    }
    if (!interface->getBSSID().empty()) {
        appendCdataElement(out, "bssid", interface->getBSSID());
    }
    out += interface->isUp() ? "<operstatus>UP</operstatus>" : "<operstatus>DOWN</operstatus>";
    if (interface->isVirtualGuest()) {
        appendCdataElement(out, "vm", interface->getVMName());
    }
    out += "</interface>";
    return out;
}

}  // namespace com::torvane::api
