// Systems without a service manager that the agent talks to.
#include "agent/ServiceManager.h"

namespace tvpolicy::cli::agent {

void notifyServiceManager(const std::string&) {}

std::chrono::milliseconds watchdogPeriod() { return std::chrono::milliseconds(0); }

}  // namespace tvpolicy::cli::agent
