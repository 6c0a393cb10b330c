#pragma once

#include <optional>

#include "host/parse/RouteDump.h"

namespace tvpolicy::probe {

/// The links and addresses of this network namespace, dumped one after the other through one
/// routing netlink socket. A dump that the kernel flags as interrupted by a change, or whose
/// addresses name a link that the link dump did not hold, is taken again, a few times at most
/// (then as it came). Empty when the socket could not be opened or a dump failed.
std::optional<parse::RouteDump> dumpRouteInterfaces();

}  // namespace tvpolicy::probe
