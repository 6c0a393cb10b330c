#include "PolicyReport.h"

#include <iterator>
#include <map>

#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskResponse.h>

namespace cli {

using Json = nlohmann::ordered_json;

std::string statusText(unsigned status)
{
    switch (status) {
    case 0: return "skipped";
    case 1: return "passed";
    case 2: return "failed";
    case 3: return "failed (passed, but prohibited)";
    case 4: return "skipped (failed, but prohibited)";
    case 5: return "warning";
    default: return "status " + std::to_string(status);
    }
}

namespace {

// How a section's status counts in the totals.
const char* tally(unsigned status)
{
    switch (status) {
    case 1: return "passed";
    case 2:
    case 3: return "failed";
    case 5: return "warning";
    default: return "skipped";
    }
}

Json tasksOf(Section& section)
{
    // The responses of the last test() are the last ones kept, one per task in order.
    Json tasks = Json::array();
    const std::list<Task*>& list = section.getTasks();
    std::list<TaskResponse*>& results = section.getResults();
    auto response = results.begin();
    if (results.size() >= list.size()) {
        std::advance(response, results.size() - list.size());
    } else {
        response = results.end();
    }
    for (Task* task : list) {
        Json entry = {{"type", task->getType()}};
        if (response != results.end()) {
            entry["passed"] = (*response)->passed;
            entry["message"] = (*response)->message;
            ++response;
        } else {
            entry["passed"] = nullptr;  // not performed
            entry["message"] = "";
        }
        tasks.push_back(entry);
    }
    return tasks;
}

Json itemOf(const std::string& key, Section& section, Json& counts)
{
    bool option = section.getType() == "Option";
    Json item = {{"key", key},
                 {"kind", option ? "option" : "section"},
                 {"name", section.getName()},
                 {"status", section.getStatus()},
                 {"statusText", statusText(section.getStatus())},
                 {"passed", section.passed()}};
    if (option) {
        auto& asOption = static_cast<Option&>(section);
        item["logicType"] = asOption.getLogicType();
        item["primaryGroup"] = asOption.getPrimaryGroup();
        item["sections"] = Json::array();
        for (auto& [childKey, child] : asOption.getSections()) {
            item["sections"].push_back(itemOf(childKey, *child, counts));
        }
    } else {
        item["group"] = section.getGroup();
        item["primary"] = section.isPrimary();
        item["prohibit"] = section.isProhibited();
        item["warningSeverity"] = section.isWarning();
        item["customScan"] = section.isCustomScan();
        if (!section.getUrl().empty()) {
            item["url"] = section.getUrl();
        }
        item["tasks"] = tasksOf(section);
        counts["sections"] = counts["sections"].get<unsigned>() + 1;
        const char* bucket = tally(section.getStatus());
        counts[bucket] = counts[bucket].get<unsigned>() + 1;
    }
    item["help"] = section.getHelp();
    item["instructionsUrl"] = section.getInstructionsUrl();
    return item;
}

void printItem(const Json& item, std::ostream& out, const std::string& indent)
{
    bool option = item["kind"] == "option";
    out << indent << (option ? "Option" : "Section") << " \"" << item["name"].get<std::string>() << "\": "
        << item["statusText"].get<std::string>();
    if (!option && !item["group"].get<std::string>().empty()) {
        out << "  (group " << item["group"].get<std::string>() << (item["primary"].get<bool>() ? ", primary" : ", secondary")
            << ")";
    }
    out << '\n';
    if (option) {
        for (const Json& child : item["sections"]) {
            printItem(child, out, indent + "  ");
        }
        return;
    }
    for (const Json& task : item["tasks"]) {
        std::string outcome = task["passed"].is_null() ? "not run" : task["passed"].get<bool>() ? "passed" : "failed";
        out << indent << "    " << task["type"].get<std::string>() << ": " << outcome;
        if (!task["message"].get<std::string>().empty()) {
            out << " - " << task["message"].get<std::string>();
        }
        out << '\n';
    }
    unsigned status = item["status"].get<unsigned>();
    if (status == 2 || status == 3 || status == 5) {
        if (!item["help"].get<std::string>().empty()) {
            out << indent << "    help: " << item["help"].get<std::string>() << '\n';
        }
        if (!item["instructionsUrl"].get<std::string>().empty()) {
            out << indent << "    instructions: " << item["instructionsUrl"].get<std::string>() << '\n';
        }
    }
}

}  // namespace

Json reportPolicy(Policy& policy, bool passed, unsigned announced)
{
    Json counts = {{"sections", 0u}, {"passed", 0u}, {"failed", 0u}, {"warning", 0u}, {"skipped", 0u}};
    Json items = Json::array();
    for (auto& [key, item] : policy.getSections()) {
        items.push_back(itemOf(key, *item, counts));
    }
    return {{"policy", policy.getName()},
            {"result", passed ? "PASS" : "FAIL"},
            {"passed", passed},
            {"counts", counts},
            {"progress", {{"announced", announced}, {"max", policy.getProgressMax()}}},
            {"items", items}};
}

void printReport(const Json& report, std::ostream& out)
{
    for (const Json& item : report["items"]) {
        printItem(item, out, "");
    }
    const Json& counts = report["counts"];
    out << "\nPolicy \"" << report["policy"].get<std::string>() << "\": " << report["result"].get<std::string>() << " ("
        << counts["passed"] << " passed, " << counts["failed"] << " failed, " << counts["warning"] << " warning, "
        << counts["skipped"] << " skipped of " << counts["sections"] << " sections)\n";
}

}  // namespace cli
