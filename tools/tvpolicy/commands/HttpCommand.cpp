// tvpolicy http get|post|head|download URL: one request of the agent's HTTP client, for checking
// what a server answers the agent. Exit 0 for a complete 2xx answer, 1 for another complete
// answer, 2 when no complete answer came (refused, TLS failure, time-out, size cap, usage).
#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <strings.h>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/BasicHttpRequest.h>

#include "commands/Command.h"
#include "policy/DocumentFile.h"
#include "report/ResultsFile.h"

namespace tvpolicy::cli {

namespace {

using com::torvane::BasicHttpRequest;
using com::torvane::HttpOperation;
using com::torvane::HttpTransfer;
using Json = nlohmann::ordered_json;

struct HttpOptions {
    std::string operation;
    std::string url;
    std::string data;  // "@FILE": the file's bytes
    std::string caFile;
    bool insecure = false;
    std::vector<std::string> headers;  // -H NAME:VALUE, in the order given
    bool follow = false;
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

std::string jsonText(const Json& value) { return value.dump(2, ' ', false, Json::error_handler_t::replace); }

// post: the client's post2 map, as the agent sees it.
int runPost(const HttpOptions& options, const std::string& body, Console& console)
{
    std::map<std::string, std::string> reply = BasicHttpRequest::post2(options.url, body, options.cookie);
    HttpTransfer outcome;
    outcome.responseCode = std::stol(reply["responseCode"]);
    outcome.completed = reply["error"].empty();
    if (options.json) {
        // The status and the verification result are numbers here as in every other form.
        Json shown = Json::object();
        for (const auto& [key, value] : reply) {
            shown[key] = key == "responseCode" || key == "verifyResult" ? Json(std::stol(value)) : Json(value);
        }
        console.out() << jsonText(shown) << '\n';
    } else if (exitFor(outcome) == exitPassed && !options.output.empty()) {
        if (auto written = writeFileAtomically(options.output, reply["contents"]); !written) {
            console.err() << "tvpolicy http: " << written.error() << '\n';
            return exitUsage;
        }
    } else if (!options.output.empty()) {
        console.err() << "tvpolicy http: " << options.output << " was left unchanged: the answer was not 2xx\n";
    } else if (outcome.completed) {
        console.out() << reply["contents"];
    }
    if (!outcome.completed) {
        console.err() << "tvpolicy http: " << reply["error"] << '\n';
    }
    return exitFor(outcome);
}

// The Location header of a redirect's header lines; empty when there is none.
std::string locationOf(const std::string& headers)
{
    std::istringstream lines(headers);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.size() > 9 && strcasecmp(line.substr(0, 9).c_str(), "location:") == 0) {
            std::string value = line.substr(9);
            value.erase(0, value.find_first_not_of(" \t"));
            value.erase(value.find_last_not_of(" \t\r") + 1);
            return value;
        }
    }
    return "";
}

// `location` made absolute against `base`: a full address as it is, a path on base's server.
std::string resolved(const std::string& base, const std::string& location)
{
    if (location.find("://") != std::string::npos) {
        return location;
    }
    std::size_t scheme = base.find("://");
    std::size_t pathStart = scheme == std::string::npos ? std::string::npos : base.find('/', scheme + 3);
    std::string origin = pathStart == std::string::npos ? base : base.substr(0, pathStart);
    if (!location.empty() && location[0] == '/') {
        return origin + location;
    }
    std::string path = pathStart == std::string::npos ? "/" : base.substr(pathStart, base.rfind('/') - pathStart + 1);
    return origin + path + location;
}

bool isRedirect(long code) { return code >= 300 && code <= 399; }

// A GET, and with --location the GETs of up to ten redirects after it; each redirect is told on
// standard error with its status and target.
HttpTransfer getFollowing(const HttpOptions& options, Console& console)
{
    std::string url = options.url;
    for (int hop = 0;; ++hop) {
        HttpTransfer outcome = BasicHttpRequest::transfer(HttpOperation::get, url, std::string(), options.cookie, "");
        std::string location = outcome.completed && isRedirect(outcome.responseCode) ? locationOf(outcome.headers) : "";
        if (location.empty()) {
            return outcome;
        }
        std::string next = resolved(url, location);
        console.err() << "tvpolicy http: " << url << " answered " << outcome.responseCode << ", a redirect to " << next
                      << (options.follow
                              ? hop < 10 ? ": following it" : ": not followed, ten redirects were followed already"
                              : ": not followed (-L follows it)")
                      << '\n';
        if (!options.follow || hop >= 10) {
            return outcome;
        }
        url = next;
    }
}

// Every -H is a header the client can send; --insecure is told each time it is used.
bool checkRequestOptions(const HttpOptions& options, Console& console)
{
    for (const std::string& header : options.headers) {
        if (!com::torvane::isValidHttpHeader(header)) {
            console.err() << "tvpolicy http: -H '" << header
                          << "' is not NAME:VALUE (a name of letters, digits and !#$%&'*+-.^_`|~, a colon, then a "
                             "value without line breaks or other control characters)\n";
            return false;
        }
    }
    if (options.insecure) {
        console.err() << "tvpolicy http: warning: --insecure: the server's certificate and host name are not "
                         "checked; anyone on the way can read and change this transfer\n";
    }
    return true;
}

int runHttp(const HttpOptions& options, Console& console)
{
    if (!checkRequestOptions(options, console)) {
        return exitUsage;
    }
    com::torvane::HttpBounds bounds;
    bounds.enabled = true;
    bounds.totalTimeoutMs = static_cast<long>(options.timeoutSeconds * 1000);
    bounds.connectTimeoutMs = std::min(bounds.connectTimeoutMs, bounds.totalTimeoutMs);
    bounds.maxBodyBytes = options.maxBytes;
    bounds.caFile = options.caFile;
    bounds.insecure = options.insecure;
    bounds.headers = options.headers;
    BasicHttpRequest::setBounds(bounds);

    if (options.follow && options.operation != "get") {
        console.err() << "tvpolicy http: -L follows the redirects of get only\n";
        return exitUsage;
    }
    if (options.operation == "post") {
        if (options.data.rfind('@', 0) != 0) {
            return runPost(options, options.data, console);
        }
        std::optional<std::string> body = loadDocument(console, "http", options.data.substr(1), options.maxBytes);
        return body ? runPost(options, *body, console) : exitUsage;
    }
    if (options.operation == "download" && options.output.empty()) {
        console.err() << "tvpolicy http: download needs -o FILE\n";
        return exitUsage;
    }
    const std::map<std::string, HttpOperation> operations = {
        {"get", HttpOperation::get}, {"head", HttpOperation::head}, {"download", HttpOperation::download}};
    HttpOperation operation = operations.at(options.operation);
    // A download fills a file beside FILE, which replaces FILE only after a complete 2xx answer.
    std::unique_ptr<FileBeside> staged;
    if (operation == HttpOperation::download) {
        staged = std::make_unique<FileBeside>(options.output);
        if (staged->name().empty()) {
            console.err() << "tvpolicy http: " << staged->why() << '\n';
            return exitUsage;
        }
    }
    HttpTransfer outcome = operation == HttpOperation::get
                               ? getFollowing(options, console)
                               : BasicHttpRequest::transfer(operation, options.url, std::string(), options.cookie,
                                                            staged ? staged->name() : std::string());
    bool success = exitFor(outcome) == exitPassed;

    if (options.json) {
        Json shown = {
            {"responseCode", outcome.responseCode}, {"verifyResult", outcome.verifyResult}, {"error", outcome.error}};
        if (operation == HttpOperation::get) {
            shown["headers"] = outcome.headers;
            shown["contents"] = outcome.contents;
        }
        console.out() << jsonText(shown) << '\n';
    } else if (operation == HttpOperation::head) {
        console.out() << outcome.responseCode << '\n';
    } else if (operation == HttpOperation::get && success && !options.output.empty()) {
        if (auto written = writeFileAtomically(options.output, outcome.contents); !written) {
            console.err() << "tvpolicy http: " << written.error() << '\n';
            return exitUsage;
        }
    } else if (operation == HttpOperation::get && outcome.completed) {
        console.out() << outcome.contents;  // a cut-off body is not shown as if it were the answer
    }
    if (!outcome.error.empty()) {
        console.err() << "tvpolicy http: " << outcome.error << '\n';
    }
    if (!options.output.empty() && operation != HttpOperation::head) {
        if (success && staged) {
            if (auto committed = staged->commit(); !committed) {
                console.err() << "tvpolicy http: " << committed.error() << '\n';
                return exitUsage;
            }
        }
        if (!success) {
            console.err() << "tvpolicy http: " << options.output << " was left unchanged: "
                          << (outcome.completed && outcome.responseCode != 0
                                  ? "the server answered " + std::to_string(outcome.responseCode) + ", not 2xx"
                                  : "no complete answer came" +
                                        (outcome.error.empty() ? std::string() : " (" + outcome.error + ")"))
                          << '\n';
        }
    }
    return exitFor(outcome);
}

CommandAction setupHttp(CLI::App& app)
{
    auto options = std::make_shared<HttpOptions>();
    app.add_option("OPERATION", options->operation, "get, post, head or download")
        ->required()
        ->check(CLI::IsMember({"get", "post", "head", "download"}));
    app.add_option("URL", options->url, "An http or https address")->required();
    app.add_option("--data", options->data, "The body of a post; @FILE sends the bytes of FILE")->option_text("D");
    app.add_option("--cacert", options->caFile,
                   "Trust the certificate authorities of this PEM file instead of the system's")
        ->option_text("FILE")
        ->check(CLI::ExistingFile);
    app.add_flag("--insecure", options->insecure,
                 "Check neither the server's certificate nor its host name (a warning says so each time)");
    app.add_option("-H,--header", options->headers,
                   "Send the request header NAME:VALUE too (repeatable; it replaces the client's own of that name)")
        ->option_text("NAME:VALUE")
        ->allow_extra_args(false);
    app.add_flag("-L,--location", options->follow,
                 "Follow redirects of a get (up to ten; the agent's client never follows them)");
    app.add_option("--cookie", options->cookie, "The Cookie header's value")->option_text("C");
    app.add_option("-o,--output", options->output, "Write the body to FILE (download needs it)")->option_text("FILE");
    app.add_flag("--json", options->json, "Print what the client learnt as one JSON object");
    app.add_option("--timeout", options->timeoutSeconds, "Give up after this many seconds (default 60)")
        ->check(CLI::Range(0.1, 86400.0));
    app.add_option("--max-size", options->maxBytes, "Give up on an answer larger than BYTES (default 64 MiB)")
        ->option_text("BYTES")
        ->check(CLI::PositiveNumber);
    return [options](Console& console) { return runHttp(*options, console); };
}

const bool registered = registerCommand(
    {"http", "Make one request of the agent's HTTP client: exit 0 for 2xx, 1 for another answer, 2 for none", 70,
     &setupHttp});

}  // namespace
}  // namespace tvpolicy::cli
