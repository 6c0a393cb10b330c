// tvpolicy http get|post|head|download URL: one request of the agent's HTTP client, for checking
// what a server answers the agent. Exit 0 for a complete 2xx answer, 1 for another complete
// answer, 2 when no complete answer came (refused, TLS failure, time-out, size cap, usage).
#include <algorithm>
#include <fstream>
#include <map>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/BasicHttpRequest.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::BasicHttpRequest;
using com::torvane::HttpOperation;
using com::torvane::HttpTransfer;
using Json = nlohmann::ordered_json;

struct HttpOptions {
    std::string operation;
    std::string url;
    std::string data;
    std::string cookie;
    std::string output;
    bool json = false;
    double timeoutSeconds = 60;
    std::size_t maxBytes = 64u << 20;
};

constexpr int exitNoAnswer = 2;

int exitFor(const HttpTransfer& transfer)
{
    if (!transfer.completed || transfer.responseCode == 0) {
        return exitNoAnswer;
    }
    return transfer.responseCode >= 200 && transfer.responseCode <= 299 ? exitPassed : exitFailed;
}

std::string jsonText(const Json& value)
{
    return value.dump(2, ' ', false, Json::error_handler_t::replace);
}

// post: the client's post2 map, as the agent sees it.
int runPost(const HttpOptions& options, Console& console)
{
    std::map<std::string, std::string> reply = BasicHttpRequest::post2(options.url, options.data, options.cookie);
    HttpTransfer outcome;
    outcome.responseCode = std::stol(reply["responseCode"]);
    outcome.completed = reply["error"].empty();
    if (options.json) {
        Json shown = Json::object();
        for (const auto& [key, value] : reply) {
            shown[key] = value;
        }
        console.out() << jsonText(shown) << '\n';
    } else if (outcome.completed && !options.output.empty()) {
        std::ofstream(options.output, std::ios::binary) << reply["contents"];
    } else if (outcome.completed) {
        console.out() << reply["contents"];
    }
    if (!outcome.completed) {
        console.err() << "tvpolicy http: " << reply["error"] << '\n';
    }
    return exitFor(outcome);
}

int runHttp(const HttpOptions& options, Console& console)
{
    com::torvane::HttpBounds bounds;
    bounds.enabled = true;
    bounds.totalTimeoutMs = static_cast<long>(options.timeoutSeconds * 1000);
    bounds.connectTimeoutMs = std::min(bounds.connectTimeoutMs, bounds.totalTimeoutMs);
    bounds.maxBodyBytes = options.maxBytes;
    BasicHttpRequest::setBounds(bounds);

    if (options.operation == "post") {
        return runPost(options, console);
    }
    if (options.operation == "download" && options.output.empty()) {
        console.err() << "tvpolicy http: download needs -o FILE\n";
        return exitUsage;
    }
    const std::map<std::string, HttpOperation> operations = {
        {"get", HttpOperation::get}, {"head", HttpOperation::head}, {"download", HttpOperation::download}};
    HttpOperation operation = operations.at(options.operation);
    std::string path = operation == HttpOperation::download ? options.output : std::string();
    HttpTransfer outcome = BasicHttpRequest::transfer(operation, options.url, std::string(), options.cookie, path);

    if (options.json) {
        Json shown = {{"responseCode", outcome.responseCode}, {"verifyResult", outcome.verifyResult},
                      {"error", outcome.error}};
        if (operation == HttpOperation::get) {
            shown["headers"] = outcome.headers;
            shown["contents"] = outcome.contents;
        }
        console.out() << jsonText(shown) << '\n';
    } else if (operation == HttpOperation::head) {
        console.out() << outcome.responseCode << '\n';
    } else if (operation == HttpOperation::get && outcome.completed && !options.output.empty()) {
        std::ofstream(options.output, std::ios::binary) << outcome.contents;
    } else if (operation == HttpOperation::get && outcome.completed) {
        console.out() << outcome.contents;  // a cut-off body is not shown as if it were the answer
    }
    if (!outcome.error.empty()) {
        console.err() << "tvpolicy http: " << outcome.error << '\n';
    }
    return exitFor(outcome);
}

CommandAction setupHttp(CLI::App& app)
{
    auto options = std::make_shared<HttpOptions>();
    app.add_option("OPERATION", options->operation, "get, post, head or download")
        ->required()->check(CLI::IsMember({"get", "post", "head", "download"}));
    app.add_option("URL", options->url, "An http or https address")->required();
    app.add_option("--data", options->data, "The body of a post")->option_text("D");
    app.add_option("--cookie", options->cookie, "The Cookie header's value")->option_text("C");
    app.add_option("-o,--output", options->output, "Write the body to FILE (download needs it)")->option_text("FILE");
    app.add_flag("--json", options->json, "Print what the client learnt as one JSON object");
    app.add_option("--timeout", options->timeoutSeconds, "Give up after this many seconds (default 60)")
        ->check(CLI::Range(0.1, 86400.0));
    app.add_option("--max-size", options->maxBytes, "Give up on an answer larger than BYTES (default 64 MiB)")
        ->option_text("BYTES")->check(CLI::PositiveNumber);
    return [options](Console& console) { return runHttp(*options, console); };
}

const bool registered = registerCommand(
    {"http", "Make one request of the agent's HTTP client: exit 0 for 2xx, 1 for another answer, 2 for none", 70,
     &setupHttp});

}  // namespace
}  // namespace tvpolicy::cli
