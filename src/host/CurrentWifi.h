#pragma once

#include <optional>

#include <tvpolicy/host/NetworkProbe.h>

namespace tvpolicy {

/// The Wi-Fi interface and its network, read afresh from the current network probe. When the
/// host has no Wi-Fi interface, logs "<operation>: no Wi-Fi interface" and answers nothing.
std::optional<NetworkProbe::WifiStatus> currentWifiStatus(const char* operation);

}  // namespace tvpolicy
