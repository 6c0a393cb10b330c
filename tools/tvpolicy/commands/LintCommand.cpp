// tvpolicy lint SOURCE [--json]: what a policy's author should know, found without performing
// any check. Exit 0 clean, 1 findings, 2 unreadable.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/policy/Policy.h>

#include "commands/Command.h"
#include "policy/PolicyInput.h"
#include "policy/PolicyLint.h"
#include "policy/UnreadElements.h"

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::ordered_json;

struct LintOptions {
    std::string source;
    bool json = false;
};

Json listOf(const std::vector<Notice>& notices)
{
    Json list = Json::array();
    for (const Notice& notice : notices) {
        list.push_back(
            {{"kind", notice.kind}, {"line", notice.line}, {"section", notice.section}, {"message", notice.message}});
    }
    return list;
}

int lint(const LintOptions& options, Console& console)
{
    std::string bytes;
    std::vector<Notice> findings;
    std::vector<Notice> notes;
    std::string policyName;
    // A monitor document is linted as what it is; anything else must be a policy.
    DocumentRead input = readDocument(options.source, defaultMaxDocumentMB << 20);
    MonitorScan monitors = input ? scanMonitors(*input) : MonitorScan{};
    if (monitors.root != "policy" && monitors.monitors > 0) {
        findings = monitors.notices;
        notes = monitors.notes;
    } else {
        std::unique_ptr<Policy> policy = parsePolicy(std::move(input), options.source, "lint", console, bytes);
        if (!policy) {
            return exitUsage;
        }
        findings = lintFindings(*policy, bytes);
        notes = lintNotes(*policy);
        policyName = policy->getName();
    }
    if (options.json) {
        Json report = {{"source", options.source},
                       {"policy", policyName},
                       {"clean", findings.empty()},
                       {"findings", listOf(findings)},
                       {"notes", listOf(notes)}};
        console.out() << report.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    } else {
        // PATH:LINE: message, as compilers write it, so editors can jump to the line.
        std::string name = sourceName(options.source);
        auto print = [&](const Notice& notice, const char* label) {
            console.out() << name << ':' << (notice.line > 0 ? std::to_string(notice.line) + ":" : std::string()) << ' '
                          << label << notice.message << '\n';
        };
        for (const Notice& finding : findings) {
            print(finding, "");
        }
        for (const Notice& note : notes) {
            print(note, "note: ");
        }
        console.out() << name << ": " << findings.size() << (findings.size() == 1 ? " finding" : " findings") << ", "
                      << notes.size() << (notes.size() == 1 ? " note" : " notes") << '\n';
    }
    return findings.empty() ? exitPassed : exitFailed;
}

CommandAction setupLint(CLI::App& app)
{
    auto options = std::make_shared<LintOptions>();
    app.add_option("SOURCE", options->source, "The policy: a file, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print one JSON document of findings and notes");
    return [options](Console& console) { return lint(*options, console); };
}

const bool registered = registerCommand(
    {"lint", "Check a policy without running it: exit 0 clean, 1 findings, 2 unreadable", 15, &setupLint});

}  // namespace
}  // namespace tvpolicy::cli
