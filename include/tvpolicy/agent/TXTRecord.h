#pragma once

#include <list>
#include <memory>
#include <optional>
#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/host/NameServer.h>

namespace com::torvane {

/// The key=value settings that DNS TXT records give for "_service._protocol.domain": one text
/// per item that has a value, in the order in which the records and their items came. Lookups
/// ask the system's name servers or the one given, as SRVRecord's do.
class TVPOLICY_API TXTRecord {
public:
    TXTRecord() = default;
    explicit TXTRecord(std::list<std::string> texts);
    virtual ~TXTRecord() = default;

    /// Forwards to lookupOSX.
    static std::shared_ptr<TXTRecord> lookup(const char* service, const char* protocol, const char* domain);
    static std::shared_ptr<TXTRecord> lookup(const char* service, const char* protocol, const char* domain,
                                             const std::optional<tvpolicy::NameServer>& server);
    static std::shared_ptr<TXTRecord> lookupOSX(const char* service, const char* protocol, const char* domain);
    static std::shared_ptr<TXTRecord> lookupOSX(const char* service, const char* protocol, const char* domain,
                                                const std::optional<tvpolicy::NameServer>& server);

    /// What follows "key=" in the first text that holds it anywhere (so the key "id" also
    /// matches "uid=7"), to the end of that text; empty when no text holds it. Case-sensitive.
    std::string getValue(std::string key);
    std::list<std::string> getRawData() { return data; }

private:
    std::list<std::string> data;
};

}  // namespace com::torvane
