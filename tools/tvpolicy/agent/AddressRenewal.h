#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace tvpolicy::cli::agent {

/// Asks the system to renew the address of every interface that is up and has an IPv4 address
/// (virtual-machine guests' adapters aside), as a server's policy asks after a passed verdict;
/// the names of those it asked for.
std::vector<std::string> renewAddresses();

/// The addresses each of `names` holds now, by name: {"eth0": ["10.0.0.7", "fe80::1"]}.
nlohmann::ordered_json addressesOf(const std::vector<std::string>& names);

}  // namespace tvpolicy::cli::agent
