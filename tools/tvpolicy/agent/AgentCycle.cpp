#include "agent/AgentCycle.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/agent/WifiManager.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include "policy/PolicyInput.h"
#include "policy/PolicyNotices.h"
#include "report/PolicyReport.h"

namespace tvpolicy::cli::agent {

namespace {

using com::torvane::AgentConfigXML;
using com::torvane::AgentStatusXML;
using com::torvane::BasicHttpRequest;
using com::torvane::HttpOperation;
using com::torvane::HttpTransfer;
using Json = nlohmann::ordered_json;

constexpr int statusAttempts = 3;  // the first ask and at most two after joining a network

// The server's cookie as the Cookie header sends it back: its name=value, no attributes.
std::string cookieValue(const std::string& setCookie) { return setCookie.substr(0, setCookie.find(';')); }

std::string withQuery(const std::string& url, const std::string& query)
{
    return url + (url.find('?') == std::string::npos ? '?' : '&') + query;
}

CycleReport ended(Outcome outcome, std::string message, std::string scan = std::string())
{
    return CycleReport{outcome, std::move(scan), std::move(message)};
}

}  // namespace

struct AgentCycle::Answer {
    HttpTransfer transfer;

    bool none() const { return transfer.responseCode == 0; }
    bool ok() const { return transfer.completed && transfer.responseCode >= 200 && transfer.responseCode <= 299; }
    std::string why(const std::string& url) const
    {
        if (none()) {
            return url + ": no answer: " + transfer.error;
        }
        if (!transfer.error.empty()) {
            return url + ": " + transfer.error;
        }
        return url + ": the server answered " + std::to_string(transfer.responseCode);
    }
};

CycleReport stoppedDuring(const std::string& what, std::string scan)
{
    return ended(Outcome::stopped, "stopped during " + what, std::move(scan));
}

AgentCycle::AgentCycle(const AgentSettings& settings, AgentState& state, Console& console, BlockingCalls& calls)
    : settings_(settings),
      state_(state),
      console_(console),
      calls_(calls)
{
}

AgentCycle::Answer AgentCycle::get(const std::string& url)
{
    return remember(BasicHttpRequest::transfer(HttpOperation::get, url, std::string(), cookie_, std::string()));
}

AgentCycle::Answer AgentCycle::post(const std::string& url, const std::string& body, const std::string& contentType)
{
    return remember(BasicHttpRequest::transfer(HttpOperation::post, url, body, cookie_, std::string(), contentType));
}

AgentCycle::Answer AgentCycle::remember(HttpTransfer transfer)
{
    const std::string& headers = transfer.headers;
    std::string::size_type at = headers.find("Set-Cookie: ");
    if (at != std::string::npos) {
        std::string::size_type start = at + 12;
        cookie_ = cookieValue(headers.substr(start, headers.find('\r', start) - start));
    }
    return Answer{std::move(transfer)};
}

std::string AgentCycle::behind(const std::string& base, const std::string& url) const
{
    if (url.rfind("http://", 0) == 0 || url.rfind("https://", 0) == 0) {
        return url;
    }
    return base + (url.rfind('/', 0) == 0 ? url.substr(1) : url);
}

CycleReport AgentCycle::run(const std::string& base)
{
    cookie_.clear();
    scan_.clear();
    const std::string configUrl = base + "agent/config";
    Answer configAnswer = get(configUrl);
    if (!configAnswer.ok()) {
        return ended(configAnswer.none() ? Outcome::unreached : Outcome::cycleFailed, configAnswer.why(configUrl));
    }
    std::shared_ptr<AgentConfigXML> config = AgentConfigXML::parse(configAnswer.transfer.contents);
    if (!config->connTestURL.empty()) {
        std::string testUrl = behind(base, config->connTestURL);
        if (BasicHttpRequest::test(testUrl) == 0) {
            return ended(Outcome::cycleFailed, testUrl + ": the connection test had no answer");
        }
    }
    deliverPending();

    std::shared_ptr<AgentStatusXML> status;
    for (int attempt = 0; attempt < statusAttempts; ++attempt) {
        Answer reply;
        std::string url;
        if (config->loginRequired) {
            url = behind(base, config->loginUrl);
            std::string form;
            for (const auto& field : config->fieldList) {
                auto value = settings_.login.find(field->getName());
                form += (form.empty() ? "" : "&") + BasicHttpRequest::urlEncode(field->getName()) + '=' +
                        BasicHttpRequest::urlEncode(value != settings_.login.end() ? value->second : std::string());
            }
            reply = post(url, form);
        } else {
            url = base + "agent/status";
            reply = get(url);
        }
        if (!reply.ok()) {
            return ended(reply.none() ? Outcome::unreached : Outcome::cycleFailed, reply.why(url));
        }
        status = AgentStatusXML::parse(reply.transfer.contents);
        if (status->getStatus() != AgentStatusXML::NEEDS_SWIFTJOIN) {
            break;
        }
        auto profile = status->getWifiProfile();
        if (!profile || attempt + 1 == statusAttempts) {
            return ended(Outcome::cycleFailed, "the server asks to join a Wi-Fi network " +
                                                   std::string(profile ? "again" : "but names none"));
        }
        const char* joining = "the Wi-Fi join";
        std::optional<bool> joined =
            calls_.run(joining, [&profile] { return WifiManager().createModifyProfile(*profile); });
        if (!joined) {
            return stoppedDuring(joining);
        }
        if (!*joined) {
            return ended(Outcome::cycleFailed, "the Wi-Fi network the server names could not be joined");
        }
    }
    switch (status->getStatus()) {
    case AgentStatusXML::AUTH_FAILURE: return ended(Outcome::authFailure, status->getMessage());
    case AgentStatusXML::SUCCESS:
    case AgentStatusXML::SCAN_SUCCESS: return ended(Outcome::nothingToDo, status->getMessage());
    case AgentStatusXML::NEEDS_SCAN: break;
    default: return ended(Outcome::cycleFailed, "the server answered an error: " + status->getMessage());
    }
    if (config->scanUrl.empty()) {
        return ended(Outcome::cycleFailed, "the server's configuration names no scan address", status->getScanName());
    }
    scan_ = status->getScanName();
    std::string uid = status->getUid().empty() ? config->uid : status->getUid();
    std::string url =
        withQuery(behind(base, config->scanUrl), "scan=" + BasicHttpRequest::urlEncode(status->getScanName()) +
                                                     "&uid=" + BasicHttpRequest::urlEncode(uid));
    CycleReport report = scanAndReport(url, status->getScanName(), uid);
    report.scan = status->getScanName();
    return report;
}

CycleReport AgentCycle::scanAndReport(const std::string& url, const std::string& scan, const std::string& uid)
{
    const auto started = std::chrono::system_clock::now();
    const auto clock = std::chrono::steady_clock::now();
    Answer policyAnswer = get(url);
    if (!policyAnswer.ok()) {
        return ended(policyAnswer.none() ? Outcome::unreached : Outcome::cycleFailed, policyAnswer.why(url));
    }
    Result<std::unique_ptr<Policy>> parsed = parsePolicy(policyAnswer.transfer.contents, url);
    if (!parsed) {
        return ended(Outcome::cycleFailed, parsed.error().substr(0, parsed.error().find('\n')));
    }
    std::unique_ptr<Policy> policy = std::move(parsed).value();
    readIncludes(*policy, console_);

    if (!policy->getInitUrl().empty()) {
        post(policy->getInitUrl(), std::string());
    }
    const std::uint32_t total = policy->getProgressMax();
    unsigned announced = 0;
    const std::string progressUrl = policy->getProgressUrl();
    policy->connect([&](std::shared_ptr<std::string> name) {
        if (name->empty()) {
            return;
        }
        ++announced;
        if (!progressUrl.empty() && !calls_.stopped()) {
            post(progressUrl, "section=" + BasicHttpRequest::urlEncode(*name) + "&done=" + std::to_string(announced) +
                                  "&total=" + std::to_string(total));
        }
    });
    const char* running = "the policy run";
    std::optional<bool> ran = calls_.run(running, [&policy] { return policy->run(); });
    if (!ran) {
        return stoppedDuring(running, scan);
    }
    bool passed = *ran;
    bool counted = passed || policy->isAuditOnly();

    std::vector<Notice> notices = documentNotices(*policy, policyAnswer.transfer.contents);
    for (const Notice& notice : hostNotices(*policy)) {
        notices.push_back(notice);
    }
    Json results = reportPolicy(*policy, passed, announced, notices);
    results["exitStatus"] = counted ? 0 : 1;
    results["run"] = runRecord(started, clock);
    // Names sort in the order the cycles ran; a result sent again keeps its own.
    char cycle[24];
    std::snprintf(cycle, sizeof cycle, "%020lld",
                  static_cast<long long>(
                      std::chrono::duration_cast<std::chrono::nanoseconds>(started.time_since_epoch()).count()));
    results["agent"] = {{"id", Machine::getHostName()}, {"uid", uid}, {"scan", scan}, {"cycle", cycle}};
    if (!policy->getResultsUrl().empty()) {
        if (Result<void> queued = state_.queue(policy->getResultsUrl(), results.dump()); !queued) {
            console_.err() << "tvpolicy agent: the results were not kept: " << queued.error() << '\n';
        }
    }
    deliverPending();

    const std::string verdictUrl = counted ? policy->getSuccessUrl() : policy->getFailureUrl();
    if (!verdictUrl.empty()) {
        get(verdictUrl);
    }
    CycleReport report = ended(counted ? Outcome::passed : Outcome::failed, counted ? "" : "the policy failed");
    report.renewAddress = counted && policy->isRenewIP();
    return report;
}

void AgentCycle::deliverPending()
{
    for (const PendingResults& waiting : state_.pending()) {
        if (calls_.stopped()) {
            return;
        }
        Answer answer = post(waiting.url, waiting.body, "application/json");
        if (answer.none() || answer.transfer.responseCode >= 500) {
            return;  // the rest wait for the next contact, in order
        }
        state_.forget(waiting.name);
    }
}

}  // namespace tvpolicy::cli::agent
