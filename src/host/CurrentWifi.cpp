#include "host/CurrentWifi.h"

#include <iostream>

#include <tvpolicy/base/Timestamp.h>

namespace tvpolicy {

std::optional<NetworkProbe::WifiStatus> currentWifiStatus(const char* operation)
{
    std::optional<NetworkProbe::WifiStatus> status = currentNetwork().wifiStatus();
    if (!status) {
        tvi::tslog(std::clog) << operation << ": no Wi-Fi interface" << std::endl;
    }
    return status;
}

}  // namespace tvpolicy
