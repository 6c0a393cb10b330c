#include "policy/PolicyLint.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>

#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/host/Utilities.h>
#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskSource.h>

#include "policy/PolicyWalk.h"

namespace tvpolicy::cli {

namespace {

bool allDigits(const std::string& word)
{
    return !word.empty() && std::all_of(word.begin(), word.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

std::string attribute(const tvpolicy::TaskSource& source, const std::string& name, bool& present)
{
    for (const auto& [key, value] : source.attributes) {
        if (key == name) {
            present = true;
            return value;
        }
    }
    present = false;
    return "";
}

// What is wrong with a version text as the comparison reads it: every word between delimiter
// characters is read as its leading number, so a word that is not all digits, or a text with
// no delimiter at all that holds more than digits, is compared as something else than it says.
std::string versionProblem(std::string text, std::string delimiters)
{
    if (text.empty()) {
        return "is empty (compared as 0)";
    }
    if (delimiters.empty()) {
        return allDigits(text)
                   ? ""
                   : "holds more than digits but the check has no delim: it is compared as the single number " +
                         std::to_string(std::strtoll(text.c_str(), nullptr, 10));
    }
    std::vector<std::string> words;
    split(text, delimiters, words);
    for (const std::string& word : words) {
        if (!allDigits(word)) {
            return "has the word '" + word + "', compared as " +
                   std::to_string(std::strtoll(word.c_str(), nullptr, 10));
        }
    }
    return words.empty() ? "has no word between the delimiters (compared as 0)" : "";
}

struct Walk {
    Section& section;
    std::string name;
    std::vector<Notice>& out;

    void add(const tvpolicy::TaskSource& source, const std::string& message)
    {
        out.push_back({"check-attribute", true, source.location.line, name,
                       "<" + source.element + "> in section \"" + name + "\": " + message});
    }

    void operation(const tvpolicy::TaskSource& source)
    {
        bool present = false;
        std::string op = attribute(source, "operation", present);
        static const std::set<std::string> known{"gt", "gte", "eq", "lte", "lt"};
        if (present && !op.empty() && known.count(op) == 0) {
            add(source, "operation '" + op + "' is not gt, gte, eq, lte or lt: it compares as gte");
        }
    }

    void version(const tvpolicy::TaskSource& source, const std::string& attributeName, const std::string& delimiters,
                 bool needed)
    {
        bool present = false;
        std::string text = attribute(source, attributeName, present);
        if (!present && !needed) {
            return;
        }
        std::string problem = versionProblem(text, delimiters);
        if (!problem.empty()) {
            add(source, attributeName + " '" + text + "' " + problem);
        }
    }

    // A posture check: its required attributes, and values it could not use.
    void posture(const tvpolicy::TaskSource& source)
    {
        std::string kind = source.element + "Task";
        for (const std::string& required : tvpolicy::requiredPostureAttributes(kind)) {
            bool present = false;
            attribute(source, required, present);
            if (!present) {
                add(source, "the attribute " + required + " is missing");
            }
        }
        for (const auto& [key, value] : source.attributes) {
            std::string problem = tvpolicy::postureAttributeProblem(kind, key, value);
            if (!problem.empty()) {
                add(source, problem);
            }
        }
    }

    void check(Task& task)
    {
        if (const tvpolicy::TaskSource* source = section.getTaskSource(&task)) {
            const std::string& element = source->element;
            bool present = false;
            if (element == "MacOSXVersion") {
                for (const char* part : {"major", "minor", "micro"}) {
                    version(*source, part, "", true);
                }
                operation(*source);
            } else if (element == "VersionFromScript" || element == "VersionFromReceipt" ||
                       element == "McAfeeVirusScanVersion" || element == "AvastVersion") {
                version(*source, "required", attribute(*source, "delim", present), true);
                operation(*source);
            } else if (element == "File") {
                version(*source, "lastModified", "-", false);
                version(*source, "version", ".", false);
                for (const char* launch : {"execute", "args", "wait"}) {
                    attribute(*source, launch, present);
                    if (present) {
                        out.push_back({"file-execute", true, source->location.line, name,
                                       "<File> in section \"" + name + "\": " + launch +
                                           " is read but nothing is started: the check only looks for the file"});
                        break;
                    }
                }
            } else {
                posture(*source);
            }
        }
        for (Task* term : termsOf(task)) {
            check(*term);
        }
    }
};

// Sections of one scope (the policy's top level, or one option) that can never run: a
// non-primary section without a group (unless custom at the top level), or one whose group has
// no primary in the same scope.
void unreachable(const std::map<std::string, Section*>& scope, bool topLevel, std::vector<Notice>& out)
{
    std::set<std::string> primaryGroups;
    for (const auto& [key, section] : scope) {
        if (section->isPrimary()) {
            primaryGroups.insert(section->getGroup());
        }
    }
    for (const auto& [key, section] : scope) {
        // Included sections never run either way; they have a finding of their own.
        if (section->getType() == "Option" || section->isPrimary() || (topLevel && section->isCustomScan()) ||
            !section->getUrl().empty()) {
            continue;
        }
        std::string name = shownName(key, *section);
        if (section->getGroup().empty()) {
            out.push_back({"never-runs", true, section->getLocation().line, name,
                           "section \"" + name + "\" is neither primary nor in a group" +
                               (topLevel ? std::string(" nor custom") : std::string()) + ": it never runs"});
        } else if (primaryGroups.count(section->getGroup()) == 0) {
            out.push_back({"never-runs", true, section->getLocation().line, name,
                           "section \"" + name + "\" is a secondary of group '" + section->getGroup() +
                               "', which has no primary here: it never runs"});
        }
    }
}

bool asksToSkip(Section& section, Task& task)
{
    const tvpolicy::TaskSource* source = section.getTaskSource(&task);
    bool present = false;
    if (source != nullptr && source->element == "and") {
        attribute(*source, "skip", present);
    }
    std::vector<Task*> terms = termsOf(task);
    return present || std::any_of(terms.begin(), terms.end(), [&](Task* term) { return asksToSkip(section, *term); });
}

// Top-level sections evaluated on their own count against the policy whenever they do not
// pass: what looks like a softer outcome (prohibited, a warning, a skip) fails it all the same.
void standAlone(const std::map<std::string, Section*>& scope, std::vector<Notice>& out)
{
    for (const auto& [key, section] : scope) {
        if (section->getType() == "Option" || !section->getGroup().empty() || !section->getUrl().empty() ||
            !(section->isPrimary() || section->isCustomScan())) {
            continue;
        }
        std::string name = shownName(key, *section);
        std::uint64_t line = section->getLocation().line;
        if (section->isProhibited()) {
            out.push_back({"stand-alone-prohibited", true, line, name,
                           "section \"" + name +
                               "\" is prohibited and stands alone: it fails the policy whatever "
                               "its checks find (a prohibited section decides only within a group or an option)"});
        }
        if (section->isWarning()) {
            out.push_back({"stand-alone-warning", true, line, name,
                           "section \"" + name +
                               "\" has severity=\"warning\" but stands alone: when it does not "
                               "pass, it still fails the policy"});
        }
        const auto& tasks = section->getTasks();
        // A structured binding cannot be captured by a lambda in C++17 (Clang refuses it).
        Section& evaluated = *section;
        if (std::any_of(tasks.begin(), tasks.end(), [&](Task* task) { return asksToSkip(evaluated, *task); })) {
            out.push_back({"stand-alone-skip", true, line, name,
                           "section \"" + name +
                               "\" has an <and skip=\"true\"> but stands alone: a skipped "
                               "stand-alone section fails the policy"});
        }
    }
}

bool isWebUrl(const std::string& url)
{
    std::string head = url.substr(0, 8);
    std::transform(head.begin(), head.end(), head.begin(), [](unsigned char c) { return std::tolower(c); });
    return head.rfind("http://", 0) == 0 || head.rfind("https://", 0) == 0;
}

}  // namespace

std::vector<Notice> lintFindings(Policy& policy, const std::string& text)
{
    std::vector<Notice> findings = documentNotices(policy, text);
    forEachSection(policy, [&](const std::string& key, Section& section) {
        std::string name = shownName(key, section);
        if (!section.getUrl().empty() && !isWebUrl(section.getUrl())) {
            findings.push_back({"include-not-web", true, section.getLocation().line, name,
                                "include \"" + name + "\" points to " + section.getUrl() +
                                    ": only http and https addresses are read, so the run would end there"});
        }
        Walk walk{section, name, findings};
        for (Task* task : section.getTasks()) {
            walk.check(*task);
        }
    });
    unreachable(policy.getSections(), true, findings);
    standAlone(policy.getSections(), findings);
    for (auto& [key, item] : policy.getSections()) {
        if (item->getType() != "Option") {
            continue;
        }
        auto& option = static_cast<Option&>(*item);
        unreachable(option.getSections(), false, findings);
        bool grouped = std::any_of(option.getSections().begin(), option.getSections().end(),
                                   [](const auto& entry) { return !entry.second->getGroup().empty(); });
        if (option.getLogicType() == 2 && grouped) {
            findings.push_back({"only-with-groups", true, option.getLocation().line, option.getName(),
                                "option \"" + option.getName() +
                                    "\" is of type ONLY and has groups: a passing group counts twice, so the option "
                                    "can pass only through its ungrouped primaries"});
        }
    }
    if (policy.getSectionCount() > 999) {
        findings.push_back(
            {"too-many-sections", true, 0, "",
             "the policy has " + std::to_string(policy.getSectionCount()) +
                 " sections: past 999 their keys sort out of document order, and so does their evaluation"});
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Notice& a, const Notice& b) { return a.line < b.line; });
    return findings;
}

std::vector<Notice> lintNotes(Policy& policy)
{
    std::vector<Notice> notes;
    std::function<void(Section&, const std::string&, Task&)> visit = [&](Section& section, const std::string& name,
                                                                         Task& task) {
        const tvpolicy::TaskSource* source = section.getTaskSource(&task);
        bool present = false;
        if (source != nullptr && source->element == "VersionFromScript") {
            std::string script = attribute(*source, "script", present);
            notes.push_back({"runs-command", true, source->location.line, name,
                             "section \"" + name + "\" runs the shell command: " + script});
        }
        for (Task* term : termsOf(task)) {
            visit(section, name, *term);
        }
    };
    forEachSection(policy, [&](const std::string& key, Section& section) {
        for (Task* task : section.getTasks()) {
            visit(section, shownName(key, section), *task);
        }
    });
    return notes;
}

}  // namespace tvpolicy::cli
