#pragma once

#include <cstdint>
#include <string>
#include <vector>

// DNS messages made rather than read: a query to send to a name server, and an answer message
// rebuilt from records that a platform's DNS service hands over one by one (so that every
// backend gives the library the same thing to parse). Pure and OS-neutral.
namespace tvpolicy::parse {

/// One resource record as a DNS service reports it: the data is the record's RDATA with any
/// names in it uncompressed.
struct DnsRecord {
    std::uint16_t type = 0;
    std::uint16_t recordClass = 1;
    std::uint32_t ttl = 0;
    std::vector<unsigned char> data;
};

/// `name` in wire form ("a.b" as 1 'a' 1 'b' 0); empty when a label is empty or longer than 63
/// bytes, or the whole is longer than 255 bytes. A trailing dot is allowed.
std::vector<unsigned char> dnsWireName(const std::string& name);

/// A standard query for `name` of type `type`, class IN, recursion desired, with `id`; empty
/// when the name cannot be written.
std::vector<unsigned char> dnsQueryMessage(std::uint16_t id, const std::string& name, std::uint16_t type);

/// A response to the query for `name` and `type` holding `records` in their order, each owned
/// by `name`; empty when the name cannot be written or a record's data is longer than 65535.
std::vector<unsigned char> dnsAnswerMessage(const std::string& name, std::uint16_t type,
                                            const std::vector<DnsRecord>& records);

}  // namespace tvpolicy::parse
