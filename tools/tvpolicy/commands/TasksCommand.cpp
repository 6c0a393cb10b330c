// tvpolicy tasks [--json]: the check elements a policy can use, in registration order, each
// with the attributes its kind reads.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskMap.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

struct Kind {
    std::string element;  // the policy element: the registered name without "Task"
    std::string registered;
    std::vector<std::string> attributes;
};

std::vector<Kind> registeredKinds()
{
    std::vector<Kind> kinds;
    const TaskMap& map = TaskFactory::getMap();
    for (std::size_t i = 0; i < map.size(); ++i) {
        const std::string& name = map.entry(i).name;
        const std::string suffix = "Task";
        bool suffixed =
            name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
        const std::vector<std::string>* attributes = tvpolicy::TaskCatalog::attributesOf(name);
        kinds.push_back({suffixed ? name.substr(0, name.size() - suffix.size()) : name, name,
                         attributes != nullptr ? *attributes : std::vector<std::string>{}});
    }
    return kinds;
}

CommandAction setupTasks(CLI::App& app)
{
    auto json = std::make_shared<bool>(false);
    app.add_flag("--json", *json, "Print one JSON array of {element, kind, attributes}");
    return [json](Console& console) {
        std::vector<Kind> kinds = registeredKinds();
        if (*json) {
            nlohmann::ordered_json list = nlohmann::ordered_json::array();
            for (const Kind& kind : kinds) {
                list.push_back({{"element", kind.element}, {"kind", kind.registered}, {"attributes", kind.attributes}});
            }
            console.out() << list.dump(2) << '\n';
            return exitPassed;
        }
        std::size_t width = 0;
        for (const Kind& kind : kinds) {
            width = std::max(width, kind.element.size());
        }
        for (const Kind& kind : kinds) {
            std::string line = kind.element + std::string(width + 2 - kind.element.size(), ' ');
            for (std::size_t i = 0; i < kind.attributes.size(); ++i) {
                line += (i > 0 ? " " : "") + kind.attributes[i];
            }
            if (kind.attributes.empty()) {
                line += "(no attributes)";
            }
            console.out() << line << '\n';
        }
        return exitPassed;
    };
}

const bool registered =
    registerCommand({"tasks", "List the check elements a policy can use, in registration order, with their attributes",
                     90, &setupTasks});

}  // namespace
}  // namespace tvpolicy::cli
