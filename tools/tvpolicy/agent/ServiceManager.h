#pragma once

#include <chrono>
#include <string>

namespace tvpolicy::cli::agent {

/// Tells the service manager about the agent when it runs under one ($NOTIFY_SOCKET): "READY=1",
/// "STOPPING=1", "WATCHDOG=1", "STATUS=...". Nothing happens without one.
void notifyServiceManager(const std::string& state);

/// How often the agent tells the service manager that it is alive: half the watchdog period
/// it asks for ($WATCHDOG_USEC, when $WATCHDOG_PID is unset or this process), or zero for none.
std::chrono::milliseconds watchdogPeriod();

}  // namespace tvpolicy::cli::agent
