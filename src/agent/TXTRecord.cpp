#include <tvpolicy/agent/TXTRecord.h>

#include <arpa/nameser.h>

#include "agent/DnsLookup.h"
#include "host/parse/DnsAnswer.h"

namespace com::torvane {

TXTRecord::TXTRecord(std::list<std::string> texts) : data(std::move(texts)) {}

std::shared_ptr<TXTRecord> TXTRecord::lookup(const char* service, const char* protocol, const char* domain)
{
    return lookup(service, protocol, domain, std::nullopt);
}

std::shared_ptr<TXTRecord> TXTRecord::lookupOSX(const char* service, const char* protocol, const char* domain)
{
    return lookupOSX(service, protocol, domain, std::nullopt);
}

std::shared_ptr<TXTRecord> TXTRecord::lookup(const char* service, const char* protocol, const char* domain,
                                             const std::optional<tvpolicy::NameServer>& server)
{
    return lookupOSX(service, protocol, domain, server);
}

std::shared_ptr<TXTRecord> TXTRecord::lookupOSX(const char* service, const char* protocol, const char* domain,
                                                const std::optional<tvpolicy::NameServer>& server)
{
    std::vector<std::string> texts =
        tvpolicy::parse::txtAnswers(lookUp(service, protocol, domain, ns_t_txt, server).valueOr({}));
    return std::make_shared<TXTRecord>(std::list<std::string>(texts.begin(), texts.end()));
}

std::string TXTRecord::getValue(std::string key)
{
    std::string mark = key + "=";
    for (const std::string& text : data) {
        std::size_t found = text.find(mark);
        if (found != std::string::npos) {
            return text.substr(found + mark.size());
        }
    }
    return std::string();
}

}  // namespace com::torvane
