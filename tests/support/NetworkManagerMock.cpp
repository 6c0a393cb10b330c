#include "support/NetworkManagerMock.h"

namespace testing_support {

bool NetworkManagerMock::start() { return bus_.startMock("networkmanager", {service, path, service, "GetDevices"}); }

std::string NetworkManagerMock::addEthernetDevice(const std::string& interface)
{
    nlohmann::json reply = control(path, "AddEthernetDevice", "ssi", {interface, interface, "100"});
    return reply.is_object() ? reply["data"][0].get<std::string>() : std::string();
}

NetworkManagerMock::Wired NetworkManagerMock::addActiveWired(const std::string& interface)
{
    Wired wired;
    wired.device = addEthernetDevice(interface);
    nlohmann::json added = bus_.call({service, "/org/freedesktop/NetworkManager/Settings",
                                      "org.freedesktop.NetworkManager.Settings", "AddConnection", "a{sa{sv}}", "1",
                                      "connection", "2", "id", "s", interface, "type", "s", "802-3-ethernet"});
    if (!added.is_object()) {
        return wired;
    }
    wired.connection = added["data"][0];
    // State 2: activated.
    nlohmann::json active =
        control(path, "AddActiveConnection", "assssu", {"1", wired.device, wired.connection, "/", interface, "2"});
    wired.active = active.is_object() ? active["data"][0].get<std::string>() : std::string();
    return wired;
}

std::vector<nlohmann::json> NetworkManagerMock::callsOf(const std::string& method) const
{
    std::vector<nlohmann::json> calls;
    nlohmann::json reply = control(path, "GetMethodCalls", "s", {method});
    if (!reply.is_object()) {
        return calls;
    }
    // a(tav): the time of each call and its arguments.
    for (const nlohmann::json& call : reply["data"][0]) {
        calls.push_back(call[1]);
    }
    return calls;
}

}  // namespace testing_support
