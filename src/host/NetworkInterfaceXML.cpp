#include <tvpolicy/host/NetworkInterfaceXML.h>

#include <vector>

namespace com::torvane::api {

namespace {

// <name><![CDATA[value]]></name>, or <name></name> for an empty value. Values come from the
// system and are not escaped further.
void element(std::string& out, const char* name, const std::string& value)
{
    out += '<';
    out += name;
    out += '>';
    if (!value.empty()) {
        out += "<![CDATA[";
        out += value;
        out += "]]>";
    }
    out += "</";
    out += name;
    out += '>';
}

}  // namespace

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
    element(out, "mac", interface->getMACAddress());
    std::vector<std::string> addresses;
    interface->getIPv4Addresses(addresses);
    for (const std::string& address : addresses) {
        element(out, "ip", address);
    }
    interface->getIPv6Addresses(addresses);
    for (const std::string& address : addresses) {
        element(out, "ipv6", address);
    }
    element(out, "desc", interface->getDescription());
    element(out, "medium", interface->getMedium());
    element(out, "name", interface->getName());
    element(out, "suffix", interface->getDNSSuffix());
    if (!interface->getESSID().empty()) {
        element(out, "essid", interface->getESSID());
    }
    if (!interface->getBSSID().empty()) {
        element(out, "bssid", interface->getBSSID());
    }
    out += interface->isUp() ? "<operstatus>UP</operstatus>" : "<operstatus>DOWN</operstatus>";
    if (interface->isVirtualGuest()) {
        element(out, "vm", interface->getVMName());
    }
    out += "</interface>";
    return out;
}

}  // namespace com::torvane::api
