#pragma once

#include <tvpolicy/host/EventProbe.h>

namespace tvpolicy {

/// The event probe of Linux: address changes from an rtnetlink socket subscribed to the IPv4
/// and IPv6 address groups, power notifications from systemd-logind over the system bus.
class LinuxEventProbe : public EventProbe {
public:
    std::unique_ptr<AddressWatch> watchAddresses() override;
    Result<std::unique_ptr<PowerWatch>> watchPower() override;
};

}  // namespace tvpolicy
