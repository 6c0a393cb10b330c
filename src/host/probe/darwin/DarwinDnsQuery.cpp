// The DNS part of the macOS probe. Without a name server of the caller's, the query goes
// through the DNS service (DNSServiceQueryRecord): answers arrive one by one through the
// callback until five seconds pass without a new one, and are put back together as one answer
// message for the library's parser. A given name server is asked directly over UDP.
#include "host/probe/darwin/DarwinHostProbe.h"

#include <cerrno>
#include <cstring>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <SystemConfiguration/SCDynamicStore.h>
#include <SystemConfiguration/SCDynamicStoreKey.h>
#include <SystemConfiguration/SCSchemaDefinitions.h>
#include <dns_sd.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/parse/DnsMessage.h"
#include "host/probe/darwin/DarwinHandles.h"

namespace tvpolicy {

namespace {

constexpr int answerWaitMilliseconds = 5000;

// The DNS service's reference, deallocated with DNSServiceRefDeallocate.
class ServiceRef {
public:
    ServiceRef() = default;
    ~ServiceRef()
    {
        if (ref_ != nullptr) {
            DNSServiceRefDeallocate(ref_);
        }
    }
    ServiceRef(const ServiceRef&) = delete;
    ServiceRef& operator=(const ServiceRef&) = delete;
    DNSServiceRef* out() { return &ref_; }
    DNSServiceRef get() const { return ref_; }

private:
    DNSServiceRef ref_ = nullptr;
};

using Socket = tvpolicy::OwnedFd;

// What the DNS service's callback gathered: the records, and the last negative answer.
struct Gathered {
    std::vector<parse::DnsRecord> records;
    DnsFailure failure = DnsNoAnswer;
};

void DNSSD_API gather(DNSServiceRef, DNSServiceFlags, uint32_t, DNSServiceErrorType error, const char*, uint16_t type,
                      uint16_t recordClass, uint16_t length, const void* data, uint32_t ttl, void* context)
{
    auto* gathered = static_cast<Gathered*>(context);
    if (error == kDNSServiceErr_NoSuchName) {
        gathered->failure = DnsNoSuchName;
    } else if (error == kDNSServiceErr_NoSuchRecord) {
        gathered->failure = DnsNoData;
    }
    if (error != kDNSServiceErr_NoError || data == nullptr) {
        return;
    }
    std::vector<parse::DnsRecord>* records = &gathered->records;
    parse::DnsRecord record;
    record.type = type;
    record.recordClass = recordClass;
    record.ttl = ttl;
    const auto* bytes = static_cast<const unsigned char*>(data);
    record.data.assign(bytes, bytes + length);
    records->push_back(std::move(record));
}

// Waits for the descriptor to turn readable: true when it did within the wait.
bool readable(int fd)
{
    pollfd entry{fd, POLLIN, 0};
    int ready;
    do {
        ready = ::poll(&entry, 1, answerWaitMilliseconds);
    } while (ready < 0 && errno == EINTR);
    return ready > 0 && (entry.revents & (POLLIN | POLLHUP | POLLERR)) != 0;
}

Result<std::vector<unsigned char>> serviceQuery(const std::string& name, int type)
{
    Gathered gathered;
    ServiceRef service;
    if (DNSServiceQueryRecord(service.out(), 0, 0, name.c_str(), static_cast<uint16_t>(type), kDNSServiceClass_IN,
                              &gather, &gathered) != kDNSServiceErr_NoError) {
        return dnsFailure(DnsNoAnswer);
    }
    const int fd = DNSServiceRefSockFD(service.get());
    while (fd >= 0 && readable(fd)) {
        if (DNSServiceProcessResult(service.get()) != kDNSServiceErr_NoError) {
            break;
        }
    }
    const std::vector<parse::DnsRecord>& records = gathered.records;
    if (records.empty()) {
        return dnsFailure(gathered.failure);
    }
    std::vector<unsigned char> message = parse::dnsAnswerMessage(name, static_cast<uint16_t>(type), records);
    if (message.empty()) {
        return dnsFailure(DnsNoAnswer);
    }
    return message;
}

// The kind of failure an answer's response code (RFC 1035 4.1.1) tells.
DnsFailure kindOf(unsigned char responseCode)
{
    switch (responseCode) {
    case 2: return DnsNoAnswer;  // server failure
    case 3: return DnsNoSuchName;
    default: return DnsRefused;  // format error, not implemented, refused, ...
    }
}

Result<std::vector<unsigned char>> serverQuery(const std::string& name, int type, const NameServer& server)
{
    sockaddr_in address{};
    address.sin_len = sizeof address;
    address.sin_family = AF_INET;
    address.sin_port = htons(server.port);
    if (::inet_pton(AF_INET, server.address.c_str(), &address.sin_addr) != 1) {
        return dnsFailure(DnsNoAnswer);
    }
    const auto id = static_cast<uint16_t>(::arc4random() & 0xFFFF);
    std::vector<unsigned char> query = parse::dnsQueryMessage(id, name, static_cast<uint16_t>(type));
    Socket socket(::socket(AF_INET, SOCK_DGRAM, 0));
    if (query.empty() || socket.get() < 0 ||
        ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::send(socket.get(), query.data(), query.size(), 0) != static_cast<ssize_t>(query.size())) {
        return dnsFailure(DnsNoAnswer);
    }
    std::vector<unsigned char> answer(65535);
    while (readable(socket.get())) {
        ssize_t got = ::recv(socket.get(), answer.data(), answer.size(), 0);
        // Only the answer to this query counts; anything else on the socket is passed over.
        if (got >= 12 && answer[0] == (id >> 8) && answer[1] == (id & 0xFF)) {
            const auto responseCode = static_cast<unsigned char>(answer[3] & 0x0F);
            if (responseCode != 0) {
                return dnsFailure(kindOf(responseCode));
            }
            answer.resize(static_cast<std::size_t>(got));
            return answer;
        }
        if (got < 0 && errno != EINTR) {
            break;
        }
    }
    return dnsFailure(DnsNoAnswer);
}

}  // namespace

Result<std::vector<unsigned char>> DarwinHostProbe::dnsQuery(const std::string& name, int type,
                                                             const std::optional<NameServer>& server) const
{
    return server ? serverQuery(name, type, *server) : serviceQuery(name, type);
}

std::string DarwinHostProbe::dnsDefaultDomain() const
{
    // The first search domain of the global DNS state, else its domain name.
    darwin::CFHolder<SCDynamicStoreRef> store(
        SCDynamicStoreCreate(kCFAllocatorDefault, CFSTR("tvpolicy"), nullptr, nullptr));
    if (!store) {
        return std::string();
    }
    darwin::CFHolder<CFStringRef> key(
        SCDynamicStoreKeyCreateNetworkGlobalEntity(kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCEntNetDNS));
    darwin::CFHolder<CFPropertyListRef> value(SCDynamicStoreCopyValue(store.get(), key.get()));
    if (!value || CFGetTypeID(value.get()) != CFDictionaryGetTypeID()) {
        return std::string();
    }
    auto dns = static_cast<CFDictionaryRef>(value.get());
    auto search = static_cast<CFArrayRef>(CFDictionaryGetValue(dns, kSCPropNetDNSSearchDomains));
    if (search != nullptr && CFGetTypeID(search) == CFArrayGetTypeID() && CFArrayGetCount(search) > 0) {
        return darwin::utf8(CFArrayGetValueAtIndex(search, 0));
    }
    return darwin::utf8(CFDictionaryGetValue(dns, kSCPropNetDNSDomainName));
}

}  // namespace tvpolicy
