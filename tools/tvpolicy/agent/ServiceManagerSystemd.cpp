// The agent under systemd: readiness and the watchdog through libsystemd.
#include "agent/ServiceManager.h"

#include <algorithm>
#include <cstdint>

#include <systemd/sd-daemon.h>

namespace tvpolicy::cli::agent {

void notifyServiceManager(const std::string& state) { (void)::sd_notify(0, state.c_str()); }

std::chrono::milliseconds watchdogPeriod()
{
    std::uint64_t usec = 0;
    if (::sd_watchdog_enabled(0, &usec) <= 0) {
        return std::chrono::milliseconds(0);
    }
    return std::chrono::milliseconds(std::max<long long>(static_cast<long long>(usec / 2000), 1));
}

}  // namespace tvpolicy::cli::agent
