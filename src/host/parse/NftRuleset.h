#pragma once

#include <string>
#include <vector>

#include <tvpolicy/host/PostureProbe.h>

namespace tvpolicy::parse {

/// The base chains of a packet-filter ruleset in the JSON form of `nft -j list ruleset` (an
/// object whose "nftables" array holds "chain" and "rule" objects, among others), in the
/// order listed. A chain is a base chain when it names a hook; it drops or rejects when one of
/// its rules has a "drop" or "reject" statement among its top-level expressions. Absent when
/// the text is not such a document; regular chains and rules of unknown chains are left out.
bool baseChainsFromNftJson(const std::string& json, std::vector<PostureProbe::FilterChain>& chains);

}  // namespace tvpolicy::parse
