#pragma once

#include <atomic>
#include <string>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli::agent {

/// The server's base address (ending in '/') from the SRV records of `_SERVICE._tcp.DOMAIN`
/// (the search domain when `domain` is empty), in the library's order: the first target that
/// takes a TCP connection within 5 seconds, completed by the TXT record's `scheme=` (https by
/// default; http only when `allowHttp`) and `path=` (/ by default). A failure when none is
/// found, or once `stop` turns true.
Result<std::string> discoverServer(const std::string& service, const std::string& domain, bool allowHttp,
                                   const std::atomic<bool>& stop);

}  // namespace tvpolicy::cli::agent
