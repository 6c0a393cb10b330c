#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tvpolicy::parse {

/// One SRV record of an answer message.
struct SrvAnswer {
    std::uint16_t priority = 0;
    std::uint16_t weight = 0;
    std::uint16_t port = 0;
    std::string target;  // decompressed, at most 254 characters (longer names are cut)
};

/// The SRV records of the answer section of `message`, in message order. Records of other
/// types or classes, and records too short to hold the three numbers, are passed over; a
/// target that cannot be decompressed is empty. A message that does not parse gives none.
std::vector<SrvAnswer> srvAnswers(const std::vector<unsigned char>& message);

/// The TXT items of the answer section of `message` that have a value, as "key=value" texts:
/// records in message order, the items of each in their order. An item without "=" has no
/// value and is skipped. Values are copied byte for byte (they may hold any byte, zero
/// included). An item that runs past the end of its record ends that record.
std::vector<std::string> txtAnswers(const std::vector<unsigned char>& message);

}  // namespace tvpolicy::parse
