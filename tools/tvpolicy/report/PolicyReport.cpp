#include "report/PolicyReport.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <iterator>
#include <map>

#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/checks/VersionEvidence.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskResponse.h>
#include <tvpolicy/policy/TaskSource.h>
#include <tvpolicy/version.h>

#include "io/TerminalText.h"
#include "policy/PolicyWalk.h"

namespace tvpolicy::cli {

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

// A version as a person reads it: without the line end a command printed after it.
std::string trimmed(const std::string& text)
{
    std::size_t first = text.find_first_not_of(" \t\r\n");
    std::size_t last = text.find_last_not_of(" \t\r\n");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

// The element, attributes and line of a check, its compared versions, and its nested terms.
void describeTask(Section& section, Task& task, Json& entry)
{
    if (const tvpolicy::TaskSource* source = section.getTaskSource(&task)) {
        entry["element"] = source->element;
        Json attributes = Json::object();
        for (const auto& [name, value] : source->attributes) {
            attributes[name] = value;
        }
        entry["attributes"] = attributes;
        entry["line"] = source->location.line;
    }
    if (const auto* version = dynamic_cast<const tvpolicy::VersionEvidence*>(&task)) {
        if (!version->lastRequiredVersion().empty() || !version->lastFoundVersion().empty()) {
            entry["version"] = {{"found", trimmed(version->lastFoundVersion())},
                                {"required", version->lastRequiredVersion()},
                                {"operation", version->lastOperation()}};
        }
    }
    // A file that is not there has no date: the check then reports the date it started from.
    const std::string tooOld = "/Too Old: 0-0-0";
    std::string message = entry.value("message", std::string());
    if (entry.value("element", std::string()) == "File" && message.size() >= tooOld.size() &&
        message.compare(message.size() - tooOld.size(), tooOld.size(), tooOld) == 0) {
        const Json& attributes = entry["attributes"];
        entry["cause"] = "no file named '" + attributes.value("fileName", std::string()) + "' found under " +
                         attributes.value("startPath", std::string());
    }
    if (const auto* posture = dynamic_cast<const tvpolicy::PostureEvidence*>(&task)) {
        if (!posture->lastFinding().empty()) {
            entry["found"] = posture->lastFinding();
        }
    }
    // Each term's outcome: an and stops at its first failing term, an or at its first passing
    // one; the terms after it, like every term of a check that was not performed, did not run.
    std::vector<Task*> terms = termsOf(task);
    if (!terms.empty()) {
        entry["terms"] = Json::array();
        const std::string type = task.getType();
        bool performed = entry.contains("passed") && !entry["passed"].is_null();
        for (Task* term : terms) {
            Json nested = {{"type", term->getType()}};
            nested["passed"] = performed ? Json(term->passed()) : Json(nullptr);
            if (performed && ((type == "andTask" && !term->passed()) || (type == "orTask" && term->passed()))) {
                performed = false;
            }
            describeTask(section, *term, nested);
            entry["terms"].push_back(nested);
        }
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
        describeTask(section, *task, entry);
        tasks.push_back(entry);
    }
    return tasks;
}

// Why a section that the library counts as passed checked nothing; empty when it checked
// something. Its status stays the library's; the reports show it as not evaluated.
std::string nothingChecked(Section& section)
{
    if (section.getStatus() != 1) {
        return "";
    }
    const std::list<Task*>& tasks = section.getTasks();
    if (tasks.empty()) {
        return section.getIgnoredElements().empty() ? "it holds no check"
                                                    : "every element in it names no check kind and was passed over";
    }
    bool allUnread = std::all_of(tasks.begin(), tasks.end(), [&](Task* task) {
        const tvpolicy::TaskSource* source = section.getTaskSource(task);
        return source != nullptr && !source->attributes.empty() &&
               source->unknownAttributes.size() == source->attributes.size();
    });
    return allUnread ? "no attribute of its checks is one that they read, so they were given nothing to check" : "";
}

// An option none of whose sections is in a group keeps the library's status 0 (skipped) whatever
// its sections find: it is shown by its outcome, with why its status says otherwise. A failed one
// is skipped for the policy too, so its failure does not count.
void explainUngroupedOption(Option& option, Json& item)
{
    const Json& sections = item["sections"];
    if (option.getStatus() != 0) {
        return;
    }
    if (sections.empty()) {
        item["statusText"] = "not evaluated";
        item["evaluated"] = false;
        item["notEvaluatedBecause"] = "it holds no section";
        return;
    }
    std::string passedBy;
    for (const Json& child : sections) {
        bool grouped = !child.value("group", std::string()).empty();
        if (grouped && child.value("primary", false)) {
            return;  // a group was evaluated: status 0 then means its sections were skipped
        }
        if (!grouped && child.value("primary", false) && child["passed"].get<bool>() && passedBy.empty()) {
            passedBy = child["name"].get<std::string>();
        }
    }
    const std::string why =
        "the library gives status 0 (skipped) to an option none of whose sections is in a group, whatever they find";
    if (option.passed()) {
        item["statusText"] = "passed";
        item["statusNote"] = why + "; it passed through section '" + passedBy + "'";
    } else {
        item["statusText"] = "failed, not counted";
        item["statusNote"] = why + "; a skipped option does not fail the policy, so this failure does not count";
    }
}

Json itemOf(const std::string& key, Section& section, Json& counts)
{
    bool option = section.getType() == "Option";
    Json item = {{"key", key},
                 {"kind", option ? "option" : "section"},
                 {"name", shownName(key, section)},
                 {"status", section.getStatus()},
                 {"statusText", statusText(section.getStatus())},
                 {"passed", section.passed()},
                 {"line", section.getLocation().line}};
    if (option) {
        auto& asOption = static_cast<Option&>(section);
        item["logicType"] = asOption.getLogicType();
        item["primaryGroup"] = asOption.getPrimaryGroup();
        item["sections"] = Json::array();
        for (auto& [childKey, child] : asOption.getSections()) {
            item["sections"].push_back(itemOf(childKey, *child, counts));
        }
        explainUngroupedOption(asOption, item);
    } else {
        item["group"] = section.getGroup();
        item["primary"] = section.isPrimary();
        item["prohibit"] = section.isProhibited();
        item["warningSeverity"] = section.isWarning();
        item["customScan"] = section.isCustomScan();
        if (!section.getUrl().empty()) {
            item["url"] = section.getUrl();
            item["evaluated"] = false;  // included sections are read, never evaluated
        }
        item["tasks"] = tasksOf(section);
        counts["sections"] = counts["sections"].get<unsigned>() + 1;
        const char* bucket = tally(section.getStatus());
        std::string nothing = nothingChecked(section);
        if (!nothing.empty()) {
            item["statusText"] = "not evaluated";
            item["evaluated"] = false;
            item["notEvaluatedBecause"] = nothing;
            bucket = "notEvaluated";
        }
        counts[bucket] = counts[bucket].get<unsigned>() + 1;
    }
    item["help"] = section.getHelp();
    item["instructionsUrl"] = section.getInstructionsUrl();
    return item;
}

// The first failing check of a section as "label: message", for the reasons below.
std::string firstFailure(const Json& item)
{
    for (const Json& task : item.value("tasks", Json::array())) {
        if (task["passed"].is_boolean() && !task["passed"].get<bool>()) {
            std::string message = task["message"].get<std::string>();
            return checkLabel(task) + (message.empty() ? "" : ": " + message);
        }
    }
    return "";
}

// Why a top-level item failed the policy, by the rules of the evaluation: a stand-alone section
// counts against the policy whenever it did not pass (so a prohibited one always does, and so
// does one that a check asked to skip); a grouped section or an option when it failed and was
// not skipped.
std::string decidingRule(Section& section, const Json& item)
{
    std::string name = "'" + item["name"].get<std::string>() + "'";
    if (section.getType() == "Option") {
        std::string failing;
        for (const Json& child : item["sections"]) {
            unsigned status = child["status"].get<unsigned>();
            if (status == 2 || status == 3 || status == 5) {
                failing += (failing.empty() ? "" : ", ") + ("'" + child["name"].get<std::string>() + "'");
            }
        }
        return "option " + name + " failed: none of its ways to pass held" +
               (failing.empty() ? std::string() : " (failed: " + failing + ")");
    }
    bool standAlone = section.getGroup().empty();
    std::string check = firstFailure(item);
    std::string found = check.empty() ? "" : " (" + check + ")";
    if (standAlone && section.isProhibited()) {
        return "section " + name + " is prohibited and stands alone, so it counts as failed whatever its checks find";
    }
    switch (section.getStatus()) {
    case 0:
        return "section " + name +
               " stands alone and a check asked to skip it (skip=\"true\"): a skipped stand-alone " +
               "section counts as failed";
    case 3: return "section " + name + " is prohibited and its checks passed, so it counts as failed";
    case 5: return "section " + name + " has severity warning, but it did not pass, and that fails the policy" + found;
    default: return "section " + name + " failed" + (check.empty() ? std::string() : ": " + check);
    }
}

// The top-level items that made the policy fail, each with the rule in words.
Json decidingItems(Policy& policy, const Json& items)
{
    Json deciding = Json::array();
    std::size_t index = 0;
    for (auto& [key, section] : policy.getSections()) {
        const Json& item = items[index++];
        bool option = section->getType() == "Option";
        bool standAlone = !option && section->getGroup().empty();
        bool counts = !section->passed() && (standAlone || !section->isSkipped());
        if (counts) {
            deciding.push_back({{"key", key},
                                {"name", item["name"]},
                                {"kind", item["kind"]},
                                {"status", section->getStatus()},
                                {"rule", decidingRule(*section, item)}});
        }
    }
    return deciding;
}

Json switchesOf(Policy& policy)
{
    Json extra = Json::object();
    // The extra information keeps document order in its joined form; the map only the last value.
    const std::string& joined = policy.getExtraInformation();
    for (std::size_t start = 0; start < joined.size();) {
        std::size_t end = joined.find('&', start);
        std::string pair = joined.substr(start, end == std::string::npos ? std::string::npos : end - start);
        std::size_t equals = pair.find('=');
        if (equals != std::string::npos) {
            extra[pair.substr(0, equals)] = pair.substr(equals + 1);
        }
        start = end == std::string::npos ? joined.size() : end + 1;
    }
    return {{"auditOnly", policy.isAuditOnly()},
            {"registerFailedRogue", policy.isRegisterFailedRogue()},
            {"renewIP", policy.isRenewIP()},
            {"debug", policy.isDebug()},
            {"primaryIP", policy.getPrimaryIP()},
            {"baseUrl", policy.getBaseUrl()},
            {"reportUrls",
             {{"success", policy.getSuccessUrl()},
              {"failure", policy.getFailureUrl()},
              {"init", policy.getInitUrl()},
              {"progress", policy.getProgressUrl()},
              {"results", policy.getResultsUrl()},
              {"supplicant", policy.getSupplicantUrl()}}},
            {"extra", extra}};
}

std::string outcomeWords(const Json& passed, const TextStyle& style)
{
    if (passed.is_null()) {
        return "not run";
    }
    return toned(passed.get<bool>() ? "passed" : "failed", passed.get<bool>() ? Tone::pass : Tone::fail, style.colour);
}

void printTerms(const Json& task, std::ostream& out, const std::string& indent, const TextStyle& style)
{
    if (!task.contains("terms")) {
        return;
    }
    for (const Json& term : task["terms"]) {
        std::string version = comparedVersions(term);
        out << indent << checkLabel(term);
        if (style.termOutcomes) {
            out << ": " << outcomeWords(term["passed"], style);
        }
        out << (version.empty() ? "" : " - " + version) << '\n';
        printTerms(term, out, indent + "  ", style);
    }
}

void printItem(const Json& item, std::ostream& out, const std::string& indent, const TextStyle& style)
{
    bool option = item["kind"] == "option";
    unsigned status = item["status"].get<unsigned>();
    Tone tone = status == 1                  ? Tone::pass
                : status == 5                ? Tone::warn
                : status == 2 || status == 3 ? Tone::fail
                                             : Tone::warn;
    bool skipped = status == 0 || status == 4;
    std::string words = item["statusText"].get<std::string>();
    if (item.contains("notEvaluatedBecause")) {
        tone = Tone::warn;
        words = toned(words, tone, style.colour) + " (" + item["notEvaluatedBecause"].get<std::string>() + ")";
        skipped = true;
    } else if (item.contains("statusNote")) {
        tone = item["passed"].get<bool>() ? Tone::pass : Tone::warn;
        words = toned(words, tone, style.colour) + " (" + item["statusNote"].get<std::string>() + ")";
        skipped = true;
    }
    out << indent << (option ? "Option" : "Section") << " \"" << item["name"].get<std::string>()
        << "\": " << (skipped ? words : toned(words, tone, style.colour));
    if (!option && !item["group"].get<std::string>().empty()) {
        out << "  (group " << item["group"].get<std::string>()
            << (item["primary"].get<bool>() ? ", primary" : ", secondary") << ")";
    }
    if (item.contains("url")) {
        out << "  (included from " << item["url"].get<std::string>() << "; included sections are never evaluated)";
    }
    out << '\n';
    if (option) {
        for (const Json& child : item["sections"]) {
            printItem(child, out, indent + "  ", style);
        }
        return;
    }
    for (const Json& task : item["tasks"]) {
        out << indent << "    " << checkLabel(task) << ": " << outcomeWords(task["passed"], style);
        std::string message = task["message"].get<std::string>();
        std::string version = comparedVersions(task);
        if (!message.empty()) {
            out << " - " << message;
        }
        if (task.contains("cause")) {
            out << " (" << task["cause"].get<std::string>() << ")";
        }
        if (!version.empty()) {
            out << " - " << version;
        }
        out << '\n';
        printTerms(task, out, indent + "      ", style);
    }
    if (status == 2 || status == 3 || status == 5) {
        if (!item["help"].get<std::string>().empty()) {
            out << indent << "    help: " << item["help"].get<std::string>() << '\n';
        }
        if (!item["instructionsUrl"].get<std::string>().empty()) {
            out << indent << "    instructions: " << item["instructionsUrl"].get<std::string>() << '\n';
        }
    }
}

void printSwitches(const Json& switches, std::ostream& out)
{
    std::vector<std::string> flags;
    if (switches["auditOnly"].get<bool>()) {
        flags.push_back("audit only (the verdict is reported, not enforced: exit status 0)");
    }
    if (switches["registerFailedRogue"].get<bool>()) {
        flags.push_back("register failed rogue");
    }
    if (!switches["renewIP"].get<bool>()) {
        flags.push_back("no IP renewal after the run");
    }
    if (switches["debug"].get<bool>()) {
        flags.push_back("debug trace");
    }
    if (!flags.empty()) {
        out << "\nSwitches: ";
        for (std::size_t i = 0; i < flags.size(); ++i) {
            out << (i > 0 ? "; " : "") << flags[i];
        }
        out << '\n';
    }
    // The library answers the base address for a report the policy does not declare; only the
    // declared ones are shown.
    bool heading = false;
    const std::string base = switches["baseUrl"].get<std::string>();
    for (const auto& [name, url] : switches["reportUrls"].items()) {
        if (!url.get<std::string>().empty() && url.get<std::string>() != base) {
            out << (heading ? "" : "Reports to:\n") << "  " << name << ": " << url.get<std::string>() << '\n';
            heading = true;
        }
    }
    if (!switches["primaryIP"].get<std::string>().empty()) {
        out << "Primary IP: " << switches["primaryIP"].get<std::string>() << '\n';
    }
    for (const auto& [name, value] : switches["extra"].items()) {
        out << "Extra: " << name << "=" << value.get<std::string>() << '\n';
    }
}

}  // namespace

std::string checkLabel(const Json& task)
{
    std::string text = task.value("element", task["type"].get<std::string>());
    if (task.contains("attributes")) {
        for (const auto& [name, value] : task["attributes"].items()) {
            text += " " + name + "=\"" + value.get<std::string>() + "\"";
        }
    }
    return text;
}

namespace {

// A version as the comparison reads it: each word between delimiter characters as its leading
// number, the whole text as one number when there is no delimiter.
std::string asCompared(const std::string& text, const std::string& delimiters)
{
    std::string shown;
    std::size_t start = 0;
    do {
        std::size_t end = delimiters.empty() ? std::string::npos : text.find_first_of(delimiters, start);
        std::string word = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
        if (!word.empty() || delimiters.empty()) {
            shown += (shown.empty() ? "" : ".") + std::to_string(std::strtoll(word.c_str(), nullptr, 10));
        }
        start = end == std::string::npos ? text.size() : end + 1;
    } while (start < text.size());
    return shown;
}

}  // namespace

std::string comparedVersions(const Json& task)
{
    if (!task.contains("version")) {
        // A posture check's finding, unless it is the message shown already.
        std::string found = task.value("found", "");
        return found == task.value("message", "") ? "" : found;
    }
    const Json& version = task["version"];
    std::string operation = version["operation"].get<std::string>();
    std::string found = version["found"].get<std::string>();
    std::string required = version["required"].get<std::string>();
    std::string text =
        "found \"" + found + "\", required " + (operation.empty() ? "gte" : operation) + " \"" + required + "\"";
    const Json attributes = task.value("attributes", Json::object());
    if (!attributes.contains("required")) {
        return text;  // the kinds that read no delimiter compare by rules of their own
    }
    std::string delimiters = attributes.value("delim", std::string());
    std::string readFound = asCompared(found, delimiters);
    std::string readRequired = asCompared(required, delimiters);
    if (readFound != found || readRequired != required) {
        text += " (compared as " + readFound + " against " + readRequired +
                (delimiters.empty() ? ": without delim each version is read as one number up to its first non-digit)"
                                    : ": each word is read as its leading number)");
    }
    return text;
}

Json reportPolicy(Policy& policy, bool passed, unsigned announced, const std::vector<Notice>& notices)
{
    Json counts = {{"sections", 0u}, {"passed", 0u},  {"failed", 0u},
                   {"warning", 0u},  {"skipped", 0u}, {"notEvaluated", 0u}};
    Json items = Json::array();
    for (auto& [key, item] : policy.getSections()) {
        items.push_back(itemOf(key, *item, counts));
    }
    Json warnings = Json::array();
    for (const Notice& notice : notices) {
        warnings.push_back(
            {{"kind", notice.kind}, {"line", notice.line}, {"section", notice.section}, {"message", notice.message}});
    }
    Json decidedBy = passed ? Json::array() : decidingItems(policy, items);
    for (const Json& decider : decidedBy) {
        for (Json& item : items) {
            if (item["key"] == decider["key"]) {
                item["decides"] = true;
            }
        }
    }
    return {{"policy", policy.getName()},
            {"result", passed ? "PASS" : "FAIL"},
            {"passed", passed},
            {"decidedBy", decidedBy},
            {"counts", counts},
            {"progress", {{"announced", announced}, {"max", policy.getProgressMax()}}},
            {"switches", switchesOf(policy)},
            {"warnings", warnings},
            {"items", items}};
}

std::string verdictLine(const Json& report, const TextStyle& style)
{
    const Json& counts = report["counts"];
    std::string result = report["result"].get<std::string>();
    std::string line = "Policy \"" + report["policy"].get<std::string>() +
                       "\": " + toned(result, result == "PASS" ? Tone::pass : Tone::fail, style.colour) + " (" +
                       counts["passed"].dump() + " passed, " + counts["failed"].dump() + " failed, " +
                       counts["warning"].dump() + " warning, " + counts["skipped"].dump() + " skipped of " +
                       counts["sections"].dump() + " sections";
    if (counts.value("notEvaluated", 0u) > 0) {
        line += "; " + counts["notEvaluated"].dump() + " section" + (counts["notEvaluated"] == 1u ? "" : "s") +
                " checked nothing";
    }
    std::map<std::string, unsigned> unevaluated;
    for (const Json& warning : report["warnings"]) {
        ++unevaluated[warning["kind"].get<std::string>()];
    }
    auto note = [&](const char* kind, const char* one, const char* many) {
        auto found = unevaluated.find(kind);
        if (found != unevaluated.end()) {
            line += "; " + std::to_string(found->second) + " " + (found->second == 1 ? one : many);
        }
    };
    note("unknown-element", "element not evaluated", "elements not evaluated");
    note("unknown-attribute", "attribute ignored", "attributes ignored");
    note("included-not-evaluated", "included section not evaluated", "included sections not evaluated");
    note("no-sections", "policy without sections", "policies without sections");
    unsigned uncounted = 0;
    unsigned emptyOptions = 0;
    for (const Json& item : report["items"]) {
        uncounted += item.value("statusText", std::string()) == "failed, not counted" ? 1 : 0;
        emptyOptions += item["kind"] == "option" && item.contains("notEvaluatedBecause") ? 1 : 0;
    }
    if (uncounted > 0) {
        line +=
            "; " + std::to_string(uncounted) + (uncounted == 1 ? " failed option" : " failed options") + " not counted";
    }
    if (emptyOptions > 0) {
        line +=
            "; " + std::to_string(emptyOptions) + (emptyOptions == 1 ? " option" : " options") + " without sections";
    }
    line += ")";
    if (report["switches"]["auditOnly"].get<bool>()) {
        line += " [audit only]";
    }
    for (const Json& decider : report.value("decidedBy", Json::array())) {
        line += "\n  because " + decider["rule"].get<std::string>();
    }
    return line;
}

void printReport(const Json& report, std::ostream& out, const TextStyle& style)
{
    for (const Json& item : report["items"]) {
        printItem(item, out, "", style);
    }
    printSwitches(report["switches"], out);
    out << '\n' << verdictLine(report, style) << '\n';
}

std::string isoTime(std::chrono::system_clock::time_point when)
{
    std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
    return text;
}

nlohmann::ordered_json runRecord(std::chrono::system_clock::time_point started,
                                 std::chrono::steady_clock::time_point clock)
{
    return {{"tool", "tvpolicy"},
            {"toolVersion", TVPOLICY_VERSION},
            {"libraryVersion", tvpolicy::libraryVersion()},
            {"startTime", isoTime(started)},
            {"durationMs",
             std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - clock).count()},
            {"hostName", Machine::getHostName()},
            {"os", Machine::getOSString()},
            {"osVersion", Machine::getOSVersion()}};
}

void explainTimeouts(Json& report, const std::vector<CommandTimeout>& timeouts)
{
    if (timeouts.empty()) {
        return;
    }
    std::function<void(Json&)> visit = [&](Json& node) {
        if (node.is_array()) {
            for (auto& child : node) {
                visit(child);
            }
            return;
        }
        if (!node.is_object()) {
            return;
        }
        if (node.value("element", std::string()) == "VersionFromScript" && node.contains("attributes")) {
            std::string script = node["attributes"].value("script", std::string());
            for (const CommandTimeout& timeout : timeouts) {
                if (timeout.command == script) {
                    node["cause"] = timeout.why;
                }
            }
        }
        for (const char* key : {"items", "sections", "tasks", "terms"}) {
            if (node.contains(key)) {
                visit(node[key]);
            }
        }
    };
    visit(report);
}

}  // namespace tvpolicy::cli
