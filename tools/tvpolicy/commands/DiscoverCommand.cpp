// tvpolicy discover SERVICE: the servers DNS names for a service (SRV records, in the order the
// agent tries them) and the service's TXT settings. Exit 0 when DNS gave any record, 1 when the
// name server answered that there is none, 2 for a usage error, 3 when no answer came.
#include <chrono>
#include <future>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/NameServer.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::SRVRecord;
using com::torvane::TXTRecord;
using Json = nlohmann::ordered_json;

struct DiscoverOptions {
    std::string service;
    std::string protocol = "tcp";
    std::string domain;
    std::string server;
    bool json = false;
};

// The records of a lookup, given back to the library however this function is left.
struct RecordList {
    std::list<const SRVRecord*> records;
    ~RecordList() { SRVRecord::freeRecords(records); }
};

// Why a lookup found nothing, as the name server's answer to one SRV question tells it.
struct EmptyAnswer {
    const char* error;  // "no-such-name", "no-records" (the server answered) or "no-answer"
    std::string message;
    int exitStatus;
};

EmptyAnswer whyEmpty(const std::string& name, const std::optional<tvpolicy::NameServer>& server)
{
    auto started = std::chrono::steady_clock::now();
    auto answer = tvpolicy::currentHost().dnsQuery(name, 33, server);
    std::string asked = server ? "the name server " + server->address + ":" + std::to_string(server->port)
                               : std::string("the system's name server");
    if (answer || answer.code() == tvpolicy::DnsNoData) {
        return {"no-records", asked + " answered: " + name + " holds no SRV or TXT record", exitFailed};
    }
    if (answer.code() == tvpolicy::DnsNoSuchName) {
        return {"no-such-name", asked + " answered: there is no name " + name, exitFailed};
    }
    // A refusal or a server failure comes back at once; silence lasts the whole wait.
    if (std::chrono::steady_clock::now() - started < std::chrono::seconds(4)) {
        return {"no-answer",
                asked + " refused or failed the question for " + name +
                    " (nothing listens there, or it does not serve that domain)",
                exitUnfetched};
    }
    return {"no-answer", "no answer from " + asked + " within 5 s", exitUnfetched};
}

int runDiscover(const DiscoverOptions& options, Console& console)
{
    std::optional<tvpolicy::NameServer> server;
    if (!options.server.empty()) {
        server = tvpolicy::NameServer::parse(options.server);
        if (!server) {
            console.err() << "tvpolicy discover: --server takes ADDR or ADDR:PORT with a dotted IPv4 address, not '"
                          << options.server << "'\n";
            return exitUsage;
        }
    }
    std::string domain = options.domain.empty() ? tvpolicy::currentHost().dnsDefaultDomain() : options.domain;
    if (domain.empty()) {
        console.err() << "tvpolicy discover: this host has no search domain; give one with --domain\n";
        return exitUsage;
    }
    const char* service = options.service.c_str();
    const char* protocol = options.protocol.c_str();
    const std::string name = "_" + options.service + "._" + options.protocol + "." + domain;
    // Every question at once: a name server that never answers costs one wait, not three.
    auto settings =
        std::async(std::launch::async, [&] { return TXTRecord::lookup(service, protocol, domain.c_str(), server); });
    auto diagnosis = std::async(std::launch::async, [&] { return whyEmpty(name, server); });
    RecordList found{SRVRecord::lookup(service, protocol, domain.c_str(), server)};
    std::list<std::string> texts = settings.get()->getRawData();
    std::optional<EmptyAnswer> empty;
    if (found.records.empty() && texts.empty()) {
        empty = diagnosis.get();
    }

    if (options.json) {
        Json servers = Json::array();
        for (const SRVRecord* record : found.records) {
            servers.push_back({{"priority", record->getPriority()},
                               {"weight", record->getWeight()},
                               {"port", record->getPort()},
                               {"target", record->getName()}});
        }
        Json shown = {{"name", name}, {"srv", servers}, {"txt", texts}, {"error", nullptr}};
        if (empty) {
            shown["error"] = empty->error;
            shown["message"] = empty->message;
        }
        console.out() << shown.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    } else {
        for (const SRVRecord* record : found.records) {
            console.out() << "SRV " << record->getPriority() << ' ' << record->getWeight() << ' ' << record->getPort()
                          << ' ' << record->getName() << '\n';
        }
        for (const std::string& text : texts) {
            console.out() << "TXT " << text << '\n';
        }
    }
    if (empty) {
        console.err() << "tvpolicy discover: " << empty->message << '\n';
        return empty->exitStatus;
    }
    return exitPassed;
}

CommandAction setupDiscover(CLI::App& app)
{
    auto options = std::make_shared<DiscoverOptions>();
    app.add_option("SERVICE", options->service, "The service name, without its underscore")->required();
    app.add_option("--proto", options->protocol, "The protocol label (default tcp)");
    app.add_option("--domain", options->domain, "The domain (default: this host's search domain)")->option_text("D");
    app.add_option("--server", options->server, "Ask this name server instead of the system's")
        ->option_text("ADDR[:PORT]");
    app.add_flag("--json", options->json, "Print the records as one JSON object");
    return [options](Console& console) { return runDiscover(*options, console); };
}

const bool registered = registerCommand(
    {"discover", "Find a service's servers (DNS SRV, in the order the agent tries them) and TXT settings", 75,
     &setupDiscover});

}  // namespace
}  // namespace tvpolicy::cli
