#pragma once

#include <tvpolicy/host/EventProbe.h>

namespace tvpolicy {

/// The event probe of macOS: address changes from the SystemConfiguration dynamic store, power
/// notifications from the I/O Kit's root power domain, each waited for on the run loop of the
/// thread that waits.
class DarwinEventProbe : public EventProbe {
public:
    std::unique_ptr<AddressWatch> watchAddresses() override;
    Result<std::unique_ptr<PowerWatch>> watchPower() override;
};

}  // namespace tvpolicy
