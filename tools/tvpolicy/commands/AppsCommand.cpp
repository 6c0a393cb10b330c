// tvpolicy apps [--xml] [--json]: the applications installed on this computer, as the agent
// reports them to the server.
#include <algorithm>
#include <memory>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/ApplicationInventoryItem.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::api::ApplicationInventory;
using com::torvane::api::ApplicationInventoryItem;
using Json = nlohmann::ordered_json;

void printTable(std::ostream& out, const ApplicationInventory& inventory)
{
    std::size_t width = 4;
    for (const auto& item : inventory) {
        width = std::max(width, item->getName().size());
    }
    out << "NAME" << std::string(width - 4 + 2, ' ') << "VERSION\n";
    for (const auto& item : inventory) {
        out << item->getName() << std::string(width - item->getName().size() + 2, ' ')
            << (item->getVersion().empty() ? "-" : item->getVersion()) << '\n';
    }
}

CommandAction setupApps(CLI::App& app)
{
    struct Options {
        bool xml = false;
        bool json = false;
    };
    auto options = std::make_shared<Options>();
    auto* xml =
        app.add_flag("--xml", options->xml, "Print the app fragments the agent sends to the server, one a line");
    app.add_flag("--json", options->json, "Print the applications as a JSON array")->excludes(xml);
    return [options](Console& console) {
        ApplicationInventory inventory = ApplicationInventoryItem::getInstances();
        if (inventory.empty()) {
            console.err() << "tvpolicy apps: no installed application could be read (no package database found)\n";
            return exitFailed;
        }
        if (options->xml) {
            for (const auto& item : inventory) {
                console.out() << item->toXML() << '\n';
            }
        } else if (options->json) {
            Json list = Json::array();
            for (const auto& item : inventory) {
                list.push_back(
                    {{"name", item->getName()}, {"version", item->getVersion()}, {"vendor", item->getVendor()}});
            }
            console.out() << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
        } else {
            printTable(console.out(), inventory);
        }
        return exitPassed;
    };
}

const bool registered = registerCommand(
    {"apps", "Print the applications installed on this computer (table, --xml or --json)", 46, &setupApps});

}  // namespace
}  // namespace tvpolicy::cli
