#pragma once

#include <string>

#include "support/FakeNetwork.h"

namespace testing_support {

/// A described network in force while this lives, with helpers for the usual entries.
class DescribedNetwork {
public:
    using Family = tvpolicy::NetworkProbe::Family;

    DescribedNetwork() : scoped_(net) {}

    /// An interface's link-level entry (a candidate when `ethernet`) with flags `flags`.
    void link(const std::string& name, unsigned int flags, bool ethernet = true)
    {
        net.addresses->push_back({name, flags, Family::Link, "", ethernet});
    }
    void ipv4(const std::string& name, unsigned int flags, const std::string& address)
    {
        net.addresses->push_back({name, flags, Family::IPv4, address, false});
    }
    void ipv6(const std::string& name, unsigned int flags, const std::string& address)
    {
        net.addresses->push_back({name, flags, Family::IPv6, address, false});
    }
    /// Hardware and link state of a wired port.
    void wired(const std::string& name, const std::string& mac, bool up)
    {
        net.hardware[name] = {mac, "Wired"};
        net.links[name] = {up, 0};
    }

    testing_support::FakeNetwork net;

private:
    tvpolicy::ScopedNetwork scoped_;
};

}  // namespace testing_support
