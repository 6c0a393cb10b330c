#include "host/probe/darwin/DarwinEventProbe.h"

#include "host/probe/darwin/DarwinAddressWatch.h"
#include "host/probe/darwin/DarwinPowerWatch.h"

namespace tvpolicy {

std::unique_ptr<EventProbe::AddressWatch> DarwinEventProbe::watchAddresses()
{
    auto watch = std::make_unique<darwin::DarwinAddressWatch>();
    if (!watch->open()) {
        return nullptr;
    }
    return watch;
}

std::unique_ptr<EventProbe::PowerWatch> DarwinEventProbe::watchPower(std::string& error)
{
    auto watch = std::make_unique<darwin::DarwinPowerWatch>();
    if (!watch->open(error)) {
        return nullptr;
    }
    return watch;
}

EventProbe& systemEvents()
{
    static DarwinEventProbe probe;
    return probe;
}

}  // namespace tvpolicy
