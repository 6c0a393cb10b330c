#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/export.h>

namespace tvpolicy {

/// A name server that a DNS lookup asks instead of the system's: an IPv4 address and a port.
struct TVPOLICY_API NameServer {
    std::string address;
    std::uint16_t port = 53;

    /// "ADDR" or "ADDR:PORT", ADDR a dotted IPv4 address and PORT 1 to 65535; nothing for any
    /// other text.
    static std::optional<NameServer> parse(const std::string& text);
};

/// Why a DNS query gave no answer message: the code of its Failure, numbered as the resolver
/// numbers h_errno.
enum DnsFailure : int {
    /// The name server answered that the name does not exist.
    DnsNoSuchName = 1,
    /// No answer came within the wait, the server failed the question, or none could be asked.
    DnsNoAnswer = 2,
    /// The name server refused the question or could not take it.
    DnsRefused = 3,
    /// The name exists and holds no record of the type asked for.
    DnsNoData = 4,
};

/// The Failure of a DNS query that ended for `kind`, in words and with `kind` as its code.
TVPOLICY_API Failure dnsFailure(DnsFailure kind);

}  // namespace tvpolicy
