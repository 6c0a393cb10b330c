#include <tvpolicy/host/NameServer.h>

namespace tvpolicy {

Failure dnsFailure(DnsFailure kind)
{
    switch (kind) {
    case DnsNoSuchName: return Failure{"no such name", kind};
    case DnsRefused: return Failure{"the name server refused the question", kind};
    case DnsNoData: return Failure{"no record of that type", kind};
    case DnsNoAnswer: break;
    }
    return Failure{"no answer from the name server", DnsNoAnswer};
}

}  // namespace tvpolicy
