#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include "Command.h"
#include "PolicyReport.h"
#include "RunProgress.h"
#include "TeeStreamBuf.h"

namespace {

struct RunOptions {
    std::string source;
    bool json = false;
    bool trace = false;
};

bool readSource(const std::string& source, std::string& text, std::string& error)
{
    if (source == "-") {
        text.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
        return true;
    }
    std::ifstream in(source, std::ios::binary);
    if (in) {
        std::ostringstream content;
        content << in.rdbuf();
        if (!in.bad()) {
            text = content.str();
            return true;
        }
    }
    error = "cannot read '" + source + "': " + std::strerror(errno != 0 ? errno : EIO);
    return false;
}

std::string withoutCarriageReturns(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

// Sections built from an address (`include`) are read before the run, here as an agent would.
void readIncludes(Policy& policy, cli::Console& console)
{
    std::unique_ptr<xercesc::SAX2XMLReader> reader;
    for (auto& [key, item] : policy.getSections()) {
        bool option = item->getType() == "Option";
        if (!option && item->getUrl().empty()) {
            continue;
        }
        if (!reader) {
            reader.reset(xercesc::XMLReaderFactory::createXMLReader());
        }
        if (!option) {
            console.err() << "reading included section '" << key << "' from " << item->getUrl() << '\n' << std::flush;
        }
        item->parse(reader.get());
    }
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

int runPolicy(const RunOptions& options, cli::Console& console)
{
    std::string text, error;
    if (!readSource(options.source, text, error)) {
        console.err() << "tvpolicy run: " << error << '\n';
        return cli::exitUsage;
    }
    std::unique_ptr<Policy> policy(Policy::parseFromString(text, true));
    if (policy->getFatalParseError()) {
        console.err() << "tvpolicy run: " << withoutCarriageReturns(policy->getFatalErrorMsg()) << '\n';
        return cli::exitUsage;
    }
    readIncludes(*policy, console);

    cli::RunProgress progress(console.err(), console.errIsTerminal(), policy->getProgressMax());
    policy->connect([&progress](std::shared_ptr<std::string> name) { progress.announce(*name); });
    std::string trace;
    bool passed = false;
    {
        cli::TeeStreamBuf capture(std::clog, trace, options.trace);
        passed = policy->run();
    }
    progress.finish();

    nlohmann::ordered_json report = cli::reportPolicy(*policy, passed, progress.announced());
    if (options.json) {
        if (options.trace) {
            report["trace"] = linesOf(trace);
        }
        console.out() << report.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
    } else {
        if (options.trace) {
            console.out() << "Trace:\n" << trace << '\n';
        }
        cli::printReport(report, console.out());
    }
    console.out() << std::flush;
    return passed ? cli::exitPassed : cli::exitFailed;
}

cli::CommandAction setupRun(CLI::App& app)
{
    auto options = std::make_shared<RunOptions>();
    app.add_option("SOURCE", options->source, "The policy: a file, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print the results as one JSON document");
    app.add_flag("--trace", options->trace, "Show the evaluation trace");
    return [options](cli::Console& console) { return runPolicy(*options, console); };
}

const bool registered = cli::registerCommand(
    {"run", "Evaluate a policy on this computer: exit 0 passed, 1 failed, 2 unreadable", 10, &setupRun});

}  // namespace
