#include <tvpolicy/agent/SRVRecord.h>

#include <memory>

#include <arpa/nameser.h>

#include "agent/DnsLookup.h"
#include "host/parse/DnsAnswer.h"

namespace com::torvane {

SRVRecord::SRVRecord(std::int32_t recordPriority, std::int32_t recordWeight, std::string target,
                     std::uint32_t targetPort)
    : priority(recordPriority),
      weight(recordWeight),
      name(std::move(target)),
      port(targetPort)
{
}

SRVRecord::~SRVRecord() = default;

std::list<const SRVRecord*> SRVRecord::lookup(const char* service, const char* protocol, const char* domain)
{
    return lookup(service, protocol, domain, std::nullopt);
}

std::list<const SRVRecord*> SRVRecord::lookupMacOSX(const char* service, const char* protocol, const char* domain)
{
    return lookupMacOSX(service, protocol, domain, std::nullopt);
}

std::list<const SRVRecord*> SRVRecord::lookup(const char* service, const char* protocol, const char* domain,
                                              const std::optional<tvpolicy::NameServer>& server)
{
    std::list<const SRVRecord*> records = lookupMacOSX(service, protocol, domain, server);
    records.sort(&SRVRecord::compare);  // stable: equal records keep their order
    return records;
}

std::list<const SRVRecord*> SRVRecord::lookupMacOSX(const char* service, const char* protocol, const char* domain,
                                                    const std::optional<tvpolicy::NameServer>& server)
{
    std::list<const SRVRecord*> records;
    for (auto& answer : tvpolicy::parse::srvAnswers(lookUp(service, protocol, domain, ns_t_srv, server).valueOr({}))) {
        auto record =
            std::make_unique<SRVRecord>(answer.priority, answer.weight, std::move(answer.target), answer.port);
        records.push_back(record.get());
        static_cast<void>(record.release());  // the list holds it now
    }
    return records;
}

void SRVRecord::freeRecords(std::list<const SRVRecord*> records)
{
    for (const SRVRecord* record : records) {
        delete record;
    }
}

bool SRVRecord::compare(const SRVRecord* a, const SRVRecord* b)
{
    if (a->priority != b->priority) {
        return a->priority < b->priority;
    }
    return a->weight < b->weight;
}

}  // namespace com::torvane
