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

Result<std::unique_ptr<EventProbe::PowerWatch>> DarwinEventProbe::watchPower()
{
    auto watch = std::make_unique<darwin::DarwinPowerWatch>();
    if (auto opened = watch->open(); !opened) {
        return Failure{opened.error()};
    }
    return std::unique_ptr<PowerWatch>(std::move(watch));
}

EventProbe& systemEvents()
{
    static DarwinEventProbe probe;
    return probe;
}

}  // namespace tvpolicy
