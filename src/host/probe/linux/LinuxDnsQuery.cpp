// The DNS part of the Linux probe: one query through the resolver library, on a resolver state
// of the call's own (res_nquery), so that lookups on several threads, each with its own name
// server, never meet.
#include "host/probe/linux/LinuxHostProbe.h"

#include <cstring>

#include <arpa/inet.h>
#include <arpa/nameser.h>
#include <netdb.h>
#include <netinet/in.h>
#include <resolv.h>

namespace tvpolicy {

namespace {

// The resolver's state for one call, released by res_nclose.
class ResolverState {
public:
    ResolverState()
    {
        std::memset(&state_, 0, sizeof state_);
        ready_ = ::res_ninit(&state_) == 0;
    }
    ~ResolverState() { ::res_nclose(&state_); }
    ResolverState(const ResolverState&) = delete;
    ResolverState& operator=(const ResolverState&) = delete;

    bool ready() const { return ready_; }
    res_state get() { return &state_; }

private:
    struct __res_state state_;
    bool ready_ = false;
};

// One try of five seconds: a lookup that gets no answer gives up after about that long, however
// many name servers the system lists.
constexpr int answerWaitSeconds = 5;
constexpr int tries = 1;

// The kind of a failed query from the resolver's h_errno; anything else it may hold
// (NETDB_INTERNAL, a query it could not make) means no answer.
DnsFailure kindOf(int error)
{
    switch (error) {
    case HOST_NOT_FOUND: return DnsNoSuchName;
    case NO_RECOVERY: return DnsRefused;
    case NO_DATA: return DnsNoData;
    default: return DnsNoAnswer;
    }
}

static_assert(DnsNoSuchName == HOST_NOT_FOUND && DnsNoAnswer == TRY_AGAIN && DnsRefused == NO_RECOVERY &&
                  DnsNoData == NO_DATA,
              "DnsFailure is numbered as h_errno");

}  // namespace

Result<std::vector<unsigned char>> LinuxHostProbe::dnsQuery(const std::string& name, int type,
                                                            const std::optional<NameServer>& server) const
{
    ResolverState resolver;
    if (!resolver.ready()) {
        return dnsFailure(DnsNoAnswer);
    }
    res_state state = resolver.get();
    state->retrans = answerWaitSeconds;
    state->retry = tries;
    if (server) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(server->port);
        if (::inet_pton(AF_INET, server->address.c_str(), &address.sin_addr) != 1) {
            return dnsFailure(DnsNoAnswer);
        }
        state->nscount = 1;
        state->nsaddr_list[0] = address;
    }
    std::vector<unsigned char> answer(NS_MAXMSG);
    int length = ::res_nquery(state, name.c_str(), ns_c_in, type, answer.data(), static_cast<int>(answer.size()));
    if (length <= 0) {
        return dnsFailure(kindOf(state->res_h_errno));
    }
    answer.resize(static_cast<std::size_t>(length) < answer.size() ? static_cast<std::size_t>(length) : answer.size());
    return answer;
}

std::string LinuxHostProbe::dnsDefaultDomain() const
{
    ResolverState resolver;
    if (!resolver.ready() || resolver.get()->dnsrch[0] == nullptr) {
        return std::string();
    }
    return resolver.get()->dnsrch[0];
}

}  // namespace tvpolicy
