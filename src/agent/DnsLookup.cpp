#include "agent/DnsLookup.h"

#include <cstdio>
#include <iostream>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/HostProbe.h>

namespace com::torvane {

tvpolicy::Result<std::vector<unsigned char>> lookUp(const char* service, const char* protocol, const char* domain,
                                                    int type, const std::optional<tvpolicy::NameServer>& server)
{
    const auto text = [](const char* value) { return value != nullptr ? value : ""; };
    char name[255];
    std::snprintf(name, sizeof name, "_%s._%s.%s", text(service), text(protocol), text(domain));
    tvi::tslog(std::clog) << " Looking up " << name << std::endl;
    return tvpolicy::currentHost().dnsQuery(name, type, server);
}

}  // namespace com::torvane
