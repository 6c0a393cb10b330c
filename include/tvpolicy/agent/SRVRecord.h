#pragma once

#include <cstdint>
#include <list>
#include <optional>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/host/NameServer.h>

namespace com::torvane {

/// One server that DNS names for a service (an SRV record: "_service._protocol.domain").
///
/// Lookups ask the system's name servers, or the name server given as their last argument
/// (for example a test server on a loopback port, or a site's own server). A lookup that gets
/// no answer gives up after about five seconds and returns no records. Each lookup logs
/// " Looking up " and the name it asks for.
class TVPOLICY_API SRVRecord {
public:
    SRVRecord(std::int32_t priority, std::int32_t weight, std::string name, std::uint32_t port);
    virtual ~SRVRecord();

    /// The records for "_service._protocol.domain" (the name cut at 254 characters), lower
    /// priority first and, at equal priority, lower weight first; records equal in both keep
    /// the order in which they came. The caller owns them: give them back with freeRecords.
    static std::list<const SRVRecord*> lookup(const char* service, const char* protocol, const char* domain);
    static std::list<const SRVRecord*> lookup(const char* service, const char* protocol, const char* domain,
                                              const std::optional<tvpolicy::NameServer>& server);
    /// The same records in the order in which they came.
    static std::list<const SRVRecord*> lookupMacOSX(const char* service, const char* protocol, const char* domain);
    static std::list<const SRVRecord*> lookupMacOSX(const char* service, const char* protocol, const char* domain,
                                                    const std::optional<tvpolicy::NameServer>& server);
    /// Deletes every record of the list.
    static void freeRecords(std::list<const SRVRecord*> records);
    /// True when `a` comes before `b`: a lower priority, or an equal priority and a lower weight.
    static bool compare(const SRVRecord* a, const SRVRecord* b);

    const char* getName() const { return name.c_str(); }
    std::uint32_t getPort() const { return port; }
    std::int32_t getPriority() const { return priority; }
    std::int32_t getWeight() const { return weight; }
    /// Kept for the caller; lookups leave it empty.
    std::string getTxtRecord() const { return txtRecord; }

private:
    std::int32_t priority;
    std::int32_t weight;
    std::string name;
    std::string txtRecord;
    std::uint32_t port;
};

}  // namespace com::torvane
