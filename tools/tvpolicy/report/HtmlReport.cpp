#include "report/HtmlReport.h"

#include <map>
#include <sstream>
#include <string>

#include "report/PolicyReport.h"

namespace tvpolicy::cli {

using Json = nlohmann::ordered_json;

std::string escapeHtml(const std::string& text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (char c : text) {
        switch (c) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        case '\'': escaped += "&#39;"; break;
        default: escaped += c;
        }
    }
    return escaped;
}

namespace {

// Colours pair with words and marks, never stand alone; print keeps them as borders.
const char* const style = R"(
:root{--pass:#1a7f37;--fail:#c62828;--warn:#9a6700;--skip:#57606a;--line:#d0d7de}
*{box-sizing:border-box}
body{font:15px/1.45 system-ui,-apple-system,"Segoe UI",Roboto,sans-serif;margin:0 auto;max-width:60rem;padding:1rem;color:#1f2328;background:#fff}
h1{font-size:1.4rem;margin:.2rem 0 .6rem}
h2{font-size:1.05rem;margin:0;display:flex;flex-wrap:wrap;gap:.4rem;align-items:baseline}
.verdict{border:3px solid;border-radius:.5rem;padding:.8rem 1rem;margin-bottom:1rem}
.verdict .word{font-size:1.6rem;font-weight:700}
.counts{display:flex;flex-wrap:wrap;gap:.3rem 1rem;margin:.3rem 0 0;padding:0;list-style:none}
.item{border:1px solid var(--line);border-left:6px solid;border-radius:.4rem;padding:.6rem .8rem;margin:.6rem 0;overflow-wrap:anywhere}
.item .item{margin-left:.4rem}
.status{font-weight:700;white-space:nowrap}
.pass{border-color:var(--pass)} .pass>.head .status,.verdict.pass .word{color:var(--pass)}
.fail{border-color:var(--fail)} .fail>.head .status,.verdict.fail .word{color:var(--fail)}
.term-passed{color:var(--pass)} .term-failed{color:var(--fail)} .term-not{color:var(--skip)}
.warn{border-color:var(--warn)} .warn>.head .status{color:var(--warn)}
.decided{color:var(--fail)} .skip{border-color:var(--skip)} .skip>.head .status{color:var(--skip)}
table{border-collapse:collapse;width:100%;margin:.4rem 0}
th,td{text-align:left;vertical-align:top;padding:.25rem .4rem;border-top:1px solid var(--line)}
th{font-weight:600;font-size:.85rem;color:#57606a}
code{font:.85rem ui-monospace,SFMono-Regular,Menlo,monospace;overflow-wrap:anywhere}
.meta{color:#57606a;font-size:.9rem}
dl.facts{display:grid;grid-template-columns:max-content 1fr;gap:.2rem 1rem;margin:.4rem 0}
dl.facts dt{color:#57606a} dl.facts dd{margin:0;overflow-wrap:anywhere}
.warnings li{margin:.2rem 0}
pre{white-space:pre-wrap;overflow-wrap:anywhere;font-size:.8rem;background:#f6f8fa;padding:.6rem;border-radius:.3rem}
@media (max-width:36rem){body{padding:.5rem}table,thead,tbody,tr,th,td{display:block}thead{display:none}td{border:0;padding:.1rem 0}tr{border-top:1px solid var(--line);padding:.3rem 0}td::before{content:attr(data-label) ": ";color:#57606a;font-size:.8rem}}
@media print{body{max-width:none;font-size:11pt}details{display:block}details>*{display:block}.item{break-inside:avoid}}
)";

const char* toneOf(unsigned status)
{
    switch (status) {
    case 1: return "pass";
    case 2:
    case 3: return "fail";
    case 5: return "warn";
    default: return "skip";
    }
}

const char* markOf(unsigned status)
{
    switch (status) {
    case 1: return "&#10004;";  // check mark
    case 2:
    case 3: return "&#10008;";  // cross
    case 5: return "&#9888;";   // warning sign
    default: return "&#8856;";  // circled dash
    }
}

std::string termOutcome(const Json& passed)
{
    return passed.is_null() ? "not run" : passed.get<bool>() ? "passed" : "failed";
}

// The terms of an and, or or not, each with its outcome, folded under a summary of the counts.
std::string termsHtml(const Json& task)
{
    if (!task.contains("terms")) {
        return "";
    }
    std::map<std::string, unsigned> counts;
    std::string items;
    for (const Json& term : task["terms"]) {
        std::string found = comparedVersions(term);
        std::string outcome = termOutcome(term["passed"]);
        ++counts[outcome];
        items += "<li><code>" + escapeHtml(checkLabel(term)) + "</code>: <span class=\"term-" +
                 outcome.substr(0, outcome.find(' ')) + "\">" + outcome + "</span>" +
                 (found.empty() ? "" : " &ndash; " + escapeHtml(found)) + termsHtml(term) + "</li>";
    }
    std::string summary;
    for (const char* outcome : {"passed", "failed", "not run"}) {
        if (counts[outcome] > 0) {
            summary += (summary.empty() ? "" : ", ") + std::to_string(counts[outcome]) + " " + outcome;
        }
    }
    std::size_t count = task["terms"].size();
    return "<details><summary>" + std::to_string(count) + (count == 1 ? " term: " : " terms: ") + summary +
           "</summary><ul>" + items + "</ul></details>";
}

bool webLink(const std::string& url)
{
    auto startsWith = [&](const char* prefix) { return url.rfind(prefix, 0) == 0; };
    return startsWith("http://") || startsWith("https://");
}

void itemHtml(const Json& item, std::ostream& html)
{
    bool option = item["kind"] == "option";
    unsigned status = item["status"].get<unsigned>();
    bool checkedNothing = item.contains("notEvaluatedBecause");
    // A section that checked nothing is shown as skipped, never as passed; an option whose status
    // is not its outcome, by its outcome (a failure that does not count as a warning).
    unsigned shown = checkedNothing ? 0 : item.contains("statusNote") ? (item["passed"].get<bool>() ? 1 : 5) : status;
    html << "<section class=\"item " << toneOf(shown) << "\"><h2 class=\"head\"><span>"
         << (option ? "Option" : "Section") << " &ldquo;" << escapeHtml(item["name"].get<std::string>())
         << "&rdquo;</span><span class=\"status\">" << markOf(shown) << ' '
         << escapeHtml(item["statusText"].get<std::string>()) << "</span></h2>";
    if (checkedNothing) {
        html << "<p class=\"meta\">not evaluated: " << escapeHtml(item["notEvaluatedBecause"].get<std::string>())
             << "</p>";
    }
    if (item.contains("statusNote")) {
        html << "<p class=\"meta\">" << escapeHtml(item["statusNote"].get<std::string>()) << "</p>";
    }
    if (!option && !item["group"].get<std::string>().empty()) {
        html << "<p class=\"meta\">group " << escapeHtml(item["group"].get<std::string>())
             << (item["primary"].get<bool>() ? ", primary" : ", secondary") << "</p>";
    }
    if (item.contains("url")) {
        html << "<p class=\"meta\">included from <code>" << escapeHtml(item["url"].get<std::string>())
             << "</code>: included sections are read but never evaluated</p>";
    }
    if (option) {
        for (const Json& child : item["sections"]) {
            itemHtml(child, html);
        }
    } else if (!item["tasks"].empty()) {
        html << "<table><thead><tr><th>Check</th><th>Outcome</th><th>Message</th></tr></thead><tbody>";
        for (const Json& task : item["tasks"]) {
            std::string outcome = task["passed"].is_null()     ? "not run"
                                  : task["passed"].get<bool>() ? "passed"
                                                               : "failed";
            std::string message = task["message"].get<std::string>();
            if (task.contains("cause")) {
                message += " (" + task["cause"].get<std::string>() + ")";
            }
            std::string versions = comparedVersions(task);
            if (!versions.empty()) {
                message += (message.empty() ? "" : "; ") + versions;
            }
            html << "<tr><td data-label=\"Check\"><code>" << escapeHtml(checkLabel(task)) << "</code>"
                 << termsHtml(task) << "</td><td data-label=\"Outcome\" class=\"status\">" << outcome
                 << "</td><td data-label=\"Message\">" << escapeHtml(message) << "</td></tr>";
        }
        html << "</tbody></table>";
    }
    if (status == 2 || status == 3 || status == 5) {
        std::string help = item["help"].get<std::string>();
        std::string instructions = item["instructionsUrl"].get<std::string>();
        if (!help.empty()) {
            html << "<p><strong>Help:</strong> " << escapeHtml(help) << "</p>";
        }
        if (!instructions.empty()) {
            html << "<p><strong>Instructions:</strong> "
                 << (webLink(instructions) ? "<a href=\"" + escapeHtml(instructions) + "\" rel=\"noreferrer\">" +
                                                 escapeHtml(instructions) + "</a>"
                                           : "<code>" + escapeHtml(instructions) + "</code>")
                 << "</p>";
        }
    }
    html << "</section>\n";
}

void factsHtml(const Json& report, std::ostream& html)
{
    html << "<section><h2>Host and run</h2><dl class=\"facts\">";
    auto fact = [&](const char* label, const std::string& value) {
        html << "<dt>" << label << "</dt><dd>" << escapeHtml(value) << "</dd>";
    };
    if (report.contains("run")) {
        const Json& run = report["run"];
        fact("Host name", run["hostName"].get<std::string>());
        fact("OS", run["os"].get<std::string>());
        fact("OS version", run["osVersion"].get<std::string>());
        fact("Started", run["startTime"].get<std::string>());
        fact("Duration", std::to_string(run["durationMs"].get<long long>()) + " ms");
        fact("Tool", run["tool"].get<std::string>() + " " + run["toolVersion"].get<std::string>());
    }
    if (report.contains("source")) {
        fact("Policy file", report["source"]["path"].get<std::string>());
        fact("SHA-256", report["source"]["sha256"].get<std::string>());
    }
    html << "</dl></section>\n";
}

void switchesHtml(const Json& switches, std::ostream& html)
{
    html << "<section><h2>Policy switches</h2><dl class=\"facts\">";
    auto flag = [&](const char* label, bool on) {
        html << "<dt>" << label << "</dt><dd>" << (on ? "yes" : "no") << "</dd>";
    };
    flag("Audit only", switches["auditOnly"].get<bool>());
    flag("Register failed rogue", switches["registerFailedRogue"].get<bool>());
    flag("Renew IP", switches["renewIP"].get<bool>());
    flag("Debug", switches["debug"].get<bool>());
    for (const auto& [name, url] : switches["reportUrls"].items()) {
        if (!url.get<std::string>().empty()) {
            html << "<dt>Reports " << escapeHtml(name) << "</dt><dd><code>" << escapeHtml(url.get<std::string>())
                 << "</code></dd>";
        }
    }
    for (const auto& [name, value] : switches["extra"].items()) {
        html << "<dt>" << escapeHtml(name) << "</dt><dd>" << escapeHtml(value.get<std::string>()) << "</dd>";
    }
    html << "</dl></section>\n";
}

}  // namespace

std::string htmlReport(const Json& report)
{
    std::ostringstream html;
    std::string policy = report["policy"].get<std::string>();
    std::string result = report["result"].get<std::string>();
    bool passed = result == "PASS";
    const Json& counts = report["counts"];
    html << "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
         << "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">"
         << "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'\">"
         << "<title>" << escapeHtml("Policy \"" + policy + "\": " + result) << "</title><style>" << style
         << "</style></head><body>\n";
    html << "<header class=\"verdict " << (passed ? "pass" : "fail") << "\"><h1>Policy &ldquo;" << escapeHtml(policy)
         << "&rdquo;</h1><div class=\"word\" id=\"verdict\">" << (passed ? "&#10004; PASS" : "&#10008; FAIL")
         << "</div>";
    if (report["switches"]["auditOnly"].get<bool>()) {
        html << "<p>Audit only: the verdict is reported, not enforced.</p>";
    }
    html << "<ul class=\"counts\"><li>" << counts["sections"] << " sections</li><li>" << counts["passed"]
         << " passed</li><li>" << counts["failed"] << " failed</li><li>" << counts["warning"] << " warning</li><li>"
         << counts["skipped"] << " skipped</li>";
    if (counts.value("notEvaluated", 0u) > 0) {
        html << "<li>" << counts["notEvaluated"] << " checked nothing</li>";
    }
    html << "</ul>";
    if (!report.value("decidedBy", Json::array()).empty()) {
        html << "<div class=\"decided fail\" id=\"decided-by\"><h2>Why it failed</h2><ul>";
        for (const Json& decider : report["decidedBy"]) {
            html << "<li>" << escapeHtml(decider["rule"].get<std::string>()) << "</li>";
        }
        html << "</ul></div>";
    }
    html << "</header>\n";
    if (!report["warnings"].empty()) {
        html << "<section class=\"warnings\"><h2>&#9888; Not evaluated or partial</h2><ul>";
        for (const Json& warning : report["warnings"]) {
            unsigned line = warning["line"].get<unsigned>();
            html << "<li>" << (line > 0 ? "line " + std::to_string(line) + ": " : std::string())
                 << escapeHtml(warning["message"].get<std::string>()) << "</li>";
        }
        html << "</ul></section>\n";
    }
    html << "<main>\n";
    for (const Json& item : report["items"]) {
        itemHtml(item, html);
    }
    html << "</main>\n";
    factsHtml(report, html);
    switchesHtml(report["switches"], html);
    if (report.contains("trace")) {
        html << "<details><summary>Evaluation trace</summary><pre>";
        for (const Json& line : report["trace"]) {
            html << escapeHtml(line.get<std::string>()) << '\n';
        }
        html << "</pre></details>\n";
    }
    html << "</body></html>\n";
    return html.str();
}

}  // namespace tvpolicy::cli
