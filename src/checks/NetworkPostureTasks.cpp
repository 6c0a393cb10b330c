// PortListening and FirewallActive: what this host's network namespace exposes.
#include <tvpolicy/host/PostureProbe.h>

#include "checks/PostureTask.h"

namespace tvpolicy::checks {

namespace {

class PortListeningTask final : public PostureTask {
public:
    std::string getType() override { return "PortListeningTask"; }

private:
    Outcome check() override
    {
        unsigned port = 0;
        parsePort(attribute("port"), port);
        std::string protocol = attribute("protocol", "tcp");
        auto sockets = currentPosture().listeningSockets(protocol);
        if (!sockets) {
            return unknown(sockets.error());
        }
        bool ipv4 = false;
        bool ipv6 = false;
        for (const auto& socket : *sockets) {
            if (socket.port == port) {
                (socket.ipv6 ? ipv6 : ipv4) = true;
            }
        }
        std::string name = protocol + " port " + std::to_string(port);
        if (!ipv4 && !ipv6) {
            return {false, "nothing listens on " + name};
        }
        return {true, name + " is listening (" + (ipv4 && ipv6 ? "IPv4, IPv6" : ipv4 ? "IPv4" : "IPv6") + ")"};
    }
};

bool filtersInput(const PostureProbe::FilterChain& chain)
{
    return chain.hook == "input" && (chain.family == "ip" || chain.family == "ip6" || chain.family == "inet");
}

class FirewallActiveTask final : public PostureTask {
public:
    std::string getType() override { return "FirewallActiveTask"; }

private:
    Outcome check() override
    {
        auto chains = currentPosture().packetFilter();
        if (!chains) {
            return unknown(chains.error());
        }
        int inputChains = 0;
        for (const auto& chain : *chains) {
            if (!filtersInput(chain)) {
                continue;
            }
            ++inputChains;
            std::string name = chain.family + " " + chain.table + " " + chain.name;
            if (chain.policy == "drop") {
                return {true, "input chain " + name + " drops (policy drop)"};
            }
            if (chain.dropsOrRejects) {
                return {true, "input chain " + name + " drops or rejects (a rule)"};
            }
        }
        if (inputChains == 0) {
            return {false, "no packet filter chain on the input hook"};
        }
        return {false, std::to_string(inputChains) + " input chain(s), none drops or rejects"};
    }
};

}  // namespace

Task* createPortListening() { return new PortListeningTask; }
Task* createFirewallActive() { return new FirewallActiveTask; }

}  // namespace tvpolicy::checks
