#pragma once

#include <optional>
#include <vector>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/host/NameServer.h>

namespace com::torvane {

/// The query both record kinds make: the name "_service._protocol.domain" (cut at 254
/// characters, a null argument read as empty), the " Looking up " line, then one query of
/// `type` through the current host probe. The answer message, or why there is none.
tvpolicy::Result<std::vector<unsigned char>> lookUp(const char* service, const char* protocol, const char* domain,
                                                    int type, const std::optional<tvpolicy::NameServer>& server);

}  // namespace com::torvane
