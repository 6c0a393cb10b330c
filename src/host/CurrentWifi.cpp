#include "host/CurrentWifi.h"

#include <iostream>

#include <tvpolicy/base/Timestamp.h>
#include "base/LogLine.h"

namespace tvpolicy {

std::optional<NetworkProbe::WifiStatus> currentWifiStatus(const char* operation)
{
    std::optional<NetworkProbe::WifiStatus> status = currentNetwork().wifiStatus();
    if (!status) {
        tvi::LogLine(std::clog) << operation << ": no Wi-Fi interface";
    }
    return status;
}

}  // namespace tvpolicy
