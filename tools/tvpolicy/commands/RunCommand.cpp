// tvpolicy run SOURCE: evaluates a policy on this computer and reports every item, what was
// not evaluated, and the verdict.
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/checks/CommandGate.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/host/PostureProbe.h>
#include <tvpolicy/host/ProcessTableSnapshot.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include "commands/Command.h"
#include "io/TeeStreamBuf.h"
#include "io/TerminalText.h"
#include "policy/DescribedHost.h"
#include "policy/DocumentFile.h"
#include "policy/PolicyInput.h"
#include "policy/PolicyNotices.h"
#include "process/CommandHost.h"
#include "report/HtmlReport.h"
#include "report/JunitReport.h"
#include "report/PolicyReport.h"
#include "report/ResultsFile.h"
#include "report/RunProgress.h"
#include "report/Sha256.h"

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::ordered_json;

struct RunOptions {
    std::string source;
    bool json = false;
    bool trace = false;
    bool strict = false;
    bool quiet = false;
    bool noColor = false;
    bool enforce = false;
    std::string output;
    std::string format;
    std::string htmlReport;
    std::string junitReport;
    std::string hostDescription;
    std::size_t maxSizeMB = defaultMaxDocumentMB;
    bool allowScripts = false;
    double commandTimeout = 60;
};

bool isAddress(const std::string& source)
{
    return source.rfind("http://", 0) == 0 || source.rfind("https://", 0) == 0;
}

// A policy fetched from a server, with the bounds of every transfer of this program. Its
// commands run only when asked for: the policy comes from elsewhere.
std::unique_ptr<Policy> fetchPolicy(const RunOptions& options, Console& console, std::string& bytes, int& status)
{
    using com::torvane::BasicHttpRequest;
    com::torvane::HttpBounds bounds;
    bounds.enabled = true;
    bounds.maxBodyBytes = options.maxSizeMB << 20;
    BasicHttpRequest::setBounds(bounds);
    com::torvane::HttpTransfer fetched =
        BasicHttpRequest::transfer(com::torvane::HttpOperation::get, options.source, "", "", "");
    if (!fetched.completed || fetched.responseCode != 200) {
        console.err() << "tvpolicy run: " << options.source << ": "
                      << (fetched.error.empty() ? "the server answered " + std::to_string(fetched.responseCode)
                                                : fetched.error)
                      << '\n';
        status = exitUnfetched;
        return nullptr;
    }
    Result<std::unique_ptr<Policy>> parsed = parsePolicy(fetched.contents, options.source);
    if (!parsed) {
        console.err() << "tvpolicy run: " << parsed.error() << '\n';
        status = exitUsage;
        return nullptr;
    }
    std::unique_ptr<Policy> policy = std::move(parsed).value();
    if (!options.allowScripts) {
        setCommandGate([](const std::string& command) {
            return "the command '" + command +
                   "' was not run: the policy was fetched, and --allow-scripts was not given";
        });
    }
    bytes = std::move(fetched.contents);
    return policy;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

// The form of the results: --format, else JSON with --json or an --output FILE named *.json.
std::string formatOf(const RunOptions& options)
{
    if (!options.format.empty()) {
        return options.format;
    }
    bool jsonName = options.output.size() > 5 && options.output.compare(options.output.size() - 5, 5, ".json") == 0;
    return options.json || jsonName ? "json" : "text";
}

// Where the results go and in which form: a file (atomically) or standard output.
int deliver(const RunOptions& options, const Json& report, const std::string& trace, Console& console)
{
    bool toFile = !options.output.empty();
    std::string format = formatOf(options);
    TextStyle style{!toFile && colourWanted(console.outFd(), options.noColor), options.trace || console.libraryShown()};
    std::ostringstream body;
    if (format == "json") {
        body << report.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    } else {
        if (options.trace) {
            body << "Trace:\n" << trace << '\n';
        }
        printReport(report, body, style);
    }
    if (!toFile) {
        console.out() << body.str();
        return exitPassed;
    }
    if (auto written = writeFileAtomically(options.output, body.str()); !written) {
        console.err() << "tvpolicy run: the results were not saved: " << written.error() << '\n';
        return exitUsage;
    }
    console.out() << verdictLine(report, style) << '\n';
    return exitPassed;
}

// The HTML and JUnit files asked for, each written whole or not at all.
int writeReports(const RunOptions& options, const Json& report, const std::string& trace, Console& console)
{
    if (!options.htmlReport.empty()) {
        Json withTrace = report;
        if (!withTrace.contains("trace")) {
            withTrace["trace"] = linesOf(trace);
        }
        if (auto written = writeFileAtomically(options.htmlReport, htmlReport(withTrace)); !written) {
            console.err() << "tvpolicy run: the HTML report was not saved: " << written.error() << '\n';
            return exitUsage;
        }
    }
    if (!options.junitReport.empty()) {
        Result<std::string> xml = junitReport(report);
        Result<void> written =
            xml ? writeFileAtomically(options.junitReport, *xml) : Result<void>(Failure{xml.error()});
        if (!written) {
            console.err() << "tvpolicy run: the JUnit report was not saved: " << written.error() << '\n';
            return exitUsage;
        }
    }
    return exitPassed;
}

int evaluate(const RunOptions& options, Console& console, const CommandHost* commands);

// A policy file that could not be read, for a reader of JSON results: the cause that standard
// error gave first, and the library's own message (its advice about network settings
// included, since it is the library's) in a field of its own. Text results add nothing to
// what standard error said.
int reportUnreadable(const RunOptions& options, const PolicyReadFailure& failure, int status, Console& console)
{
    if (formatOf(options) != "json") {
        return status;
    }
    Json report = {{"policy", nullptr}, {"result", "ERROR"}, {"passed", false}, {"error", failure.cause}};
    report["libraryMessage"] = failure.libraryMessage.empty() ? Json(nullptr) : Json(failure.libraryMessage);
    report["exitStatus"] = status;
    report["source"] = {{"path", options.source}};
    std::string text = report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
    if (options.output.empty()) {
        console.out() << text;
        return status;
    }
    if (auto written = writeFileAtomically(options.output, text); !written) {
        console.err() << "tvpolicy run: the results were not saved: " << written.error() << '\n';
    }
    return status;
}

// Two outputs named alike would overwrite each other: whichever came last would win.
bool sameFile(const std::string& a, const std::string& b)
{
    if (a.empty() || b.empty()) {
        return false;
    }
    auto resolved = [](const std::string& path) {
        std::error_code error;
        return std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error).lexically_normal();
    };
    return a == b || resolved(a) == resolved(b);
}

int runPolicy(const RunOptions& options, Console& console)
{
    const std::vector<std::pair<const char*, const std::string*>> outputs = {
        {"--output", &options.output}, {"--report", &options.htmlReport}, {"--junit", &options.junitReport}};
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        for (std::size_t j = i + 1; j < outputs.size(); ++j) {
            if (sameFile(*outputs[i].second, *outputs[j].second)) {
                console.err() << "tvpolicy run: " << outputs[i].first << " and " << outputs[j].first
                              << " name the same file, " << *outputs[j].second << ": one would overwrite the other\n";
                return exitUsage;
            }
        }
    }
    if (options.hostDescription.empty()) {
        CommandGroups groups(std::chrono::seconds(1), commandTimeout(options.commandTimeout));
        CommandHost bounded(tvpolicy::systemHost(), groups, CommandHost::Stops::endProgram);
        tvpolicy::ScopedHost scope(bounded);
        return evaluate(options, console, &bounded);
    }
    Result<std::unique_ptr<DescribedHost>> described = DescribedHost::load(options.hostDescription);
    if (!described) {
        console.err() << "tvpolicy run: --host " << described.error() << '\n';
        return exitUsage;
    }
    tvpolicy::ScopedHost scope((*described)->host());
    tvpolicy::ScopedPosture posture((*described)->posture());
    return evaluate(options, console, nullptr);
}

int evaluate(const RunOptions& options, Console& console, const CommandHost* commands)
{
    const auto started = std::chrono::system_clock::now();
    const auto clock = std::chrono::steady_clock::now();
    bool errColour = colourWanted(console.errFd(), options.noColor);

    std::string bytes;
    int unread = exitUsage;
    PolicyReadFailure failure;
    std::unique_ptr<Policy> policy = isAddress(options.source) ? fetchPolicy(options, console, bytes, unread)
                                                               : readPolicy(options.source, options.maxSizeMB << 20,
                                                                            "run", console, bytes, &failure);
    if (!policy) {
        return isAddress(options.source) ? unread : reportUnreadable(options, failure, unread, console);
    }

    // An include that cannot be read ends the run, as it ends the agent; the CLI says why and
    // ends with its own status.
    Section::setReadFailureHandler([&console](const std::string& url, const std::string& reason) {
        console.err() << "tvpolicy run: cannot read the included section at " << url << ": " << reason << '\n'
                      << std::flush;
        console.out() << std::flush;
        std::exit(exitUnfetched);
    });
    readIncludes(*policy, console, options.quiet);
    Section::setReadFailureHandler(nullptr);

    // The warning about processes that withhold their executables and the run's process checks
    // read the process table once.
    tvpolicy::ProcessTableSnapshot oneReading;
    std::vector<Notice> notices = documentNotices(*policy, bytes);
    std::size_t documentWarnings = notices.size();
    for (const Notice& notice : hostNotices(*policy)) {
        notices.push_back(notice);
    }
    for (const Notice& notice : notices) {
        console.err() << "tvpolicy run: " << toned("warning", Tone::warn, errColour) << ": " << describe(notice)
                      << '\n';
    }
    if (options.strict && documentWarnings > 0) {
        console.err() << "tvpolicy run: --strict: the policy holds what would not be evaluated; it was not run\n";
        return exitUsage;
    }

    auto mode = options.quiet                    ? RunProgress::Mode::quiet
                : smartTerminal(console.errFd()) ? RunProgress::Mode::bar
                                                 : RunProgress::Mode::lines;
    RunProgress progress(console.err(), console.errFd(), mode, policy->getProgressMax());
    Policy& running = *policy;
    policy->connect([&progress, &running](std::shared_ptr<std::string> name) {
        if (!name->empty()) {
            progress.started(*name);
        } else if (const Section* passedOver = running.getAnnouncedSection()) {
            progress.passedOver(passedOver->getName());
        }
    });
    std::string trace;
    bool passed = false;
    {
        TeeStreamBuf capture(std::clog, trace, options.trace || !options.htmlReport.empty());
        passed = policy->run();
    }
    progress.finish();

    int status = passed ? exitPassed : exitFailed;
    if (policy->isAuditOnly() && !options.enforce) {
        status = exitPassed;  // an audit-only policy reports; it does not decide access
    }
    Json report = reportPolicy(*policy, passed, progress.announced(), notices);
    if (commands != nullptr) {
        explainTimeouts(report, commands->timeouts());
    }
    report["exitStatus"] = status;
    report["run"] = runRecord(started, clock);
    report["source"] = {{"path", options.source}, {"bytes", bytes.size()}, {"sha256", sha256Hex(bytes)}};
    if (options.trace) {
        report["trace"] = linesOf(trace);
    }
    int written = writeReports(options, report, trace, console);
    int delivered = deliver(options, report, trace, console);
    return written != exitPassed ? written : delivered != exitPassed ? delivered : status;
}

CommandAction setupRun(CLI::App& app)
{
    auto options = std::make_shared<RunOptions>();
    app.add_option("SOURCE", options->source, "The policy: a file, - for standard input, or an http(s) address")
        ->required();
    app.add_flag("--allow-scripts", options->allowScripts,
                 "Let a policy fetched from an address run every command it names (without it, none runs)");
    app.add_flag("--json", options->json, "Print the results as one JSON document (same as --format json)");
    app.add_flag("--trace", options->trace, "Show the evaluation trace");
    app.add_flag("--strict", options->strict,
                 "Refuse (exit 2) a policy that holds elements or attributes that would not be evaluated");
    app.add_flag("-q,--quiet", options->quiet, "Show no progress");
    app.add_flag("--no-color", options->noColor, "No colour on a terminal (also: NO_COLOR set)");
    app.add_flag("--enforce", options->enforce, "Exit by the verdict also for an audit-only policy");
    app.add_option("--output", options->output,
                   "Write the results to FILE (atomically) instead of standard output, which then shows the verdict")
        ->option_text("FILE");
    app.add_option("--format", options->format, "Results as text or json (default: by --json, or by FILE's .json)")
        ->check(CLI::IsMember({"text", "json"}));
    app.add_option("--report", options->htmlReport, "Also write a self-contained HTML report to FILE")
        ->option_text("FILE");
    app.add_option("--junit", options->junitReport, "Also write the results as JUnit XML to FILE")->option_text("FILE");
    app.add_option("--host", options->hostDescription,
                   "Evaluate against the host that the JSON document FILE describes, not this computer")
        ->option_text("FILE");
    addCommandTimeout(app, options->commandTimeout);
    app.add_option("--max-size", options->maxSizeMB, "Refuse a policy larger than N MB before reading it")
        ->capture_default_str()
        ->check(CLI::Range(std::size_t{1}, std::size_t{4096}));
    return [options](Console& console) { return runPolicy(*options, console); };
}

const bool registered = registerCommand(
    {"run",
     "Evaluate a policy on this computer: exit 0 passed, 1 failed, 2 unreadable or refused, 3 the policy or an "
     "include could not be fetched",
     10, &setupRun});

}  // namespace
}  // namespace tvpolicy::cli
