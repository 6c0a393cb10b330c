#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/Machine.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

struct Fact {
    const char* key;    // in --json
    const char* label;  // in the plain listing
    nlohmann::ordered_json value;
};

std::vector<Fact> gatherFacts()
{
    auto processes = tvpolicy::currentHost().processTable();
    auto withheld =
        std::count_if(processes.begin(), processes.end(), [](const auto& p) { return p.executableWithheld; });
    return {
        {"osVersion", "OS version", Machine::getOSVersion()},
        {"os", "OS", Machine::getOSString()},
        {"hostName", "Host name", Machine::getHostName()},
        {"architecture", "Architecture", Machine::getHWDescription()},
        {"hardware", "Hardware", Machine::getHardwareDesc()},
        {"uuid", "UUID", Machine::getSystemUUID()},
        {"serialNumber", "Serial number", Machine::getSystemSerialNumber()},
        {"processCount", "Processes", processes.size()},
        // Processes whose executable path this user may not read: process checks may miss them.
        {"processesWithheld", "Not readable", withheld},
    };
}

CommandAction setupFacts(CLI::App& app)
{
    auto json = std::make_shared<bool>(false);
    app.add_flag("--json", *json, "Print the facts as one JSON object");
    return [json](Console& console) {
        const auto text = [](const nlohmann::ordered_json& value) {
            // Hardware strings come from firmware: odd bytes are shown, never refused.
            return value.is_string() ? value.get<std::string>()
                                     : value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
        };
        std::vector<Fact> facts = gatherFacts();
        if (*json) {
            nlohmann::ordered_json object = nlohmann::ordered_json::object();
            for (const Fact& fact : facts) {
                object[fact.key] = fact.value;
            }
            console.out() << object.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
            return exitPassed;
        }
        for (const Fact& fact : facts) {
            std::string label = std::string(fact.label) + ":";
            label.resize(16, ' ');
            console.out() << label << text(fact.value) << '\n';
        }
        return exitPassed;
    };
}

const bool registered = registerCommand(
    {"facts", "Print this computer's facts: OS, host name, hardware identity, process count", 40, &setupFacts});

}  // namespace
}  // namespace tvpolicy::cli
