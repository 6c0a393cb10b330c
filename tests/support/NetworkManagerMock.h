#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "support/PrivateBus.h"

namespace testing_support {

/// NetworkManager as python3-dbusmock's template plays it, on a test's private bus, with the
/// few steps the template leaves to its caller.
class NetworkManagerMock {
public:
    static constexpr const char* service = "org.freedesktop.NetworkManager";
    static constexpr const char* path = "/org/freedesktop/NetworkManager";

    explicit NetworkManagerMock(PrivateBus& bus) : bus_(bus) {}

    /// Starts the template; false when it did not come up.
    bool start();

    /// A method of the mock's control interface on `object`; its JSON reply.
    nlohmann::json control(const std::string& object, const std::string& method, const std::string& signature,
                           const std::vector<std::string>& args) const
    {
        return bus_.mockControl(service, object, method, signature, args);
    }

    /// An Ethernet device for `interface`, without a connection; its path.
    std::string addEthernetDevice(const std::string& interface);

    struct Wired {
        std::string device;
        std::string connection;  ///< the stored connection
        std::string active;      ///< its activation on the device
    };
    /// An Ethernet device for `interface` on which a stored wired connection is active.
    Wired addActiveWired(const std::string& interface);

    /// The arguments of every call of `method` on the manager object that the mock recorded,
    /// each as busctl's JSON of the variants.
    std::vector<nlohmann::json> callsOf(const std::string& method) const;

private:
    PrivateBus& bus_;
};

}  // namespace testing_support
