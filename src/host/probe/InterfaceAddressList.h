#pragma once

#include <optional>
#include <vector>

#include <ifaddrs.h>

#include <tvpolicy/host/NetworkProbe.h>

namespace tvpolicy::probe {

/// Which entries of the system's interface address list stand for an interface's Ethernet
/// hardware: the one rule in which the backends differ.
using HardwareCandidateRule = bool (*)(const ifaddrs& entry);

/// The entries of an interface address list (as getifaddrs links them) in their order: name,
/// flags, family, the address text of IPv4 and IPv6 entries. `linkFamily` is the address family
/// of the system's link-level entries (AF_PACKET, AF_LINK). An entry without a name or an
/// address is kept with an empty name or the family Other.
std::vector<NetworkProbe::AddressEntry> addressEntries(const ifaddrs* list, int linkFamily,
                                                       HardwareCandidateRule hardwareCandidate);

/// addressEntries of the system's list, read afresh; nothing when getifaddrs fails.
std::optional<std::vector<NetworkProbe::AddressEntry>> interfaceAddressList(int linkFamily,
                                                                            HardwareCandidateRule hardwareCandidate);

}  // namespace tvpolicy::probe
