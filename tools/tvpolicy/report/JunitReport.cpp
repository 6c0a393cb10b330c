#include "report/JunitReport.h"

#include <memory>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLString.hpp>

#include <tvpolicy/base/Utf8.h>

#include "report/PolicyReport.h"

namespace tvpolicy::cli {

using Json = nlohmann::ordered_json;
using namespace xercesc;

namespace {

// What the nested checks of a failed check found, each as "; <check> - <finding>".
void appendFindings(const nlohmann::ordered_json& task, std::string& line)
{
    if (!task.contains("terms")) {
        return;
    }
    for (const auto& term : task["terms"]) {
        std::string found = comparedVersions(term);
        if (!found.empty()) {
            line += "; " + checkLabel(term) + " - " + found;
        }
        appendFindings(term, line);
    }
}

// UTF-16 text for the DOM, owned.
class Wide {
public:
    // Texts come from policies and command output: bytes that are not UTF-8 become U+FFFD, and
    // so do characters that XML 1.0 cannot carry.
    explicit Wide(const std::string& text)
    {
        std::string valid = utf8::valid(text);
        TranscodeFromStr from(reinterpret_cast<const XMLByte*>(valid.data()), valid.size(), "UTF-8");
        text_ = XMLString::replicate(from.str());
        for (XMLCh* c = text_; c != nullptr && *c != 0; ++c) {
            if ((*c < 0x20 && *c != 0x09 && *c != 0x0A && *c != 0x0D) || *c == 0xFFFE || *c == 0xFFFF) {
                *c = 0xFFFD;
            }
        }
    }
    ~Wide() { XMLString::release(&text_); }
    Wide(const Wide&) = delete;
    Wide& operator=(const Wide&) = delete;
    const XMLCh* get() const { return text_; }

private:
    XMLCh* text_ = nullptr;
};

void setAttribute(DOMElement* element, const char* name, const std::string& value)
{
    element->setAttribute(Wide(name).get(), Wide(value).get());
}

DOMElement* child(DOMDocument* document, DOMElement* parent, const char* name)
{
    DOMElement* element = document->createElement(Wide(name).get());
    parent->appendChild(element);
    return element;
}

struct Totals {
    unsigned tests = 0, failures = 0, skipped = 0;
};

// How the cases of one item count: whether its failures decided the verdict, and whether the
// verdict was enforced (an audit-only run exits 0 whatever it finds).
struct Weight {
    bool decides = false;
    bool enforced = true;
    std::string rule;  // the deciding rule in words, for the failure message
    // Why a failed section inside an option did not decide the verdict.
    std::string notDeciding = "it did not decide the verdict, its option passed without it";
};

void skip(DOMDocument* document, DOMElement* testCase, const std::string& message, Totals& totals)
{
    ++totals.skipped;
    setAttribute(child(document, testCase, "skipped"), "message", message);
}

void fail(DOMDocument* document, DOMElement* testCase, const std::string& message, const std::string& type,
          const std::string& details, Totals& totals)
{
    ++totals.failures;
    DOMElement* failure = child(document, testCase, "failure");
    setAttribute(failure, "message", message);
    setAttribute(failure, "type", type);
    failure->appendChild(document->createTextNode(Wide(details).get()));
}

void addCases(DOMDocument* document, DOMElement* suite, const Json& item, const std::string& className,
              const Weight& weight, Totals& totals)
{
    if (item["kind"] == "option") {
        unsigned before = totals.failures;
        Weight inside = weight;
        if (item.contains("statusNote") && !item["passed"].get<bool>()) {
            inside.notDeciding =
                "it did not decide the verdict: its option failed, but an option none of whose "
                "sections is in a group counts as skipped, and does not fail the policy";
        }
        for (const Json& section : item["sections"]) {
            addCases(document, suite, section, className + "." + item["name"].get<std::string>(), inside, totals);
        }
        if (weight.decides && weight.enforced && totals.failures == before) {
            // No section of the option failed on its own, yet the option did: the option is the case.
            ++totals.tests;
            DOMElement* testCase = child(document, suite, "testcase");
            setAttribute(testCase, "name", item["name"].get<std::string>());
            setAttribute(testCase, "classname", className);
            fail(document, testCase, weight.rule, item["statusText"].get<std::string>(), weight.rule + "\n", totals);
        }
        return;
    }
    ++totals.tests;
    DOMElement* testCase = child(document, suite, "testcase");
    setAttribute(testCase, "name", item["name"].get<std::string>());
    setAttribute(testCase, "classname", className);
    unsigned status = item["status"].get<unsigned>();
    bool failing = status == 2 || status == 3 || status == 5;
    bool own = item.contains("decides");
    if (!(weight.decides && weight.enforced && (own || failing))) {
        if (item.contains("notEvaluatedBecause")) {
            skip(document, testCase, "not evaluated: " + item["notEvaluatedBecause"].get<std::string>(), totals);
        } else if (item.contains("url")) {
            skip(document, testCase, "included sections are never evaluated", totals);
        } else if (failing || own) {
            skip(document, testCase,
                 item["statusText"].get<std::string>() +
                     (weight.decides ? "; the verdict is not enforced (audit only)" : "; " + weight.notDeciding),
                 totals);
        } else if (status == 0 || status == 4) {
            skip(document, testCase, item["statusText"].get<std::string>(), totals);
        }
        return;
    }
    std::string details;
    std::string first;
    for (const Json& task : item["tasks"]) {
        bool failed = task["passed"].is_boolean() && !task["passed"].get<bool>();
        if (!failed && status != 3) {
            continue;
        }
        std::string line = checkLabel(task) + ": " + (failed ? "failed" : "passed, but the section is prohibited");
        if (!task["message"].get<std::string>().empty()) {
            line += " - " + task["message"].get<std::string>();
        }
        appendFindings(task, line);
        first = first.empty() ? line : first;
        details += line + "\n";
    }
    details = weight.rule + "\n" + details;
    // The failing check says most about a plain failure; a section that counts as failed
    // whatever its checks found (prohibited, or skipped while standing alone) is told by its rule.
    first = first.empty() || (own && (!failing || item.value("prohibit", false))) ? weight.rule : first;
    if (!item["help"].get<std::string>().empty()) {
        details += "help: " + item["help"].get<std::string>() + "\n";
    }
    if (!item["instructionsUrl"].get<std::string>().empty()) {
        details += "instructions: " + item["instructionsUrl"].get<std::string>() + "\n";
    }
    fail(document, testCase, first.empty() ? item["statusText"].get<std::string>() : first,
         status == 5 ? "warning" : item["statusText"].get<std::string>(), details, totals);
}

Weight weightOf(const Json& report, const Json& item)
{
    Weight weight;
    weight.enforced = report.value("exitStatus", 1) == 1 || report["passed"].get<bool>();
    for (const Json& decider : report.value("decidedBy", Json::array())) {
        if (decider["key"] == item["key"]) {
            weight.decides = true;
            weight.rule = decider["rule"].get<std::string>();
        }
    }
    return weight;
}

}  // namespace

Result<std::string> junitReport(const Json& report)
{
    XMLPlatformUtils::Initialize();
    std::string xml;
    std::string why;
    {
        DOMImplementation* implementation = DOMImplementationRegistry::getDOMImplementation(Wide("LS").get());
        std::unique_ptr<DOMDocument, void (*)(DOMDocument*)> document(
            implementation->createDocument(nullptr, Wide("testsuites").get(), nullptr),
            [](DOMDocument* doc) { doc->release(); });
        DOMElement* root = document->getDocumentElement();
        std::string policy = report["policy"].get<std::string>();
        DOMElement* suite = child(document.get(), root, "testsuite");
        Totals totals;
        std::string className = policy.empty() ? "policy" : policy;
        for (const Json& item : report["items"]) {
            addCases(document.get(), suite, item, className, weightOf(report, item), totals);
        }
        if (totals.failures == 0 && report.value("exitStatus", 0) == 1) {
            // The run failed by something no section shows: the verdict is the case, so that a
            // CI system never reads a failed run as clean.
            ++totals.tests;
            DOMElement* testCase = child(document.get(), suite, "testcase");
            setAttribute(testCase, "name", "verdict");
            setAttribute(testCase, "classname", className);
            fail(document.get(), testCase, "the policy failed", "FAIL", "the policy failed\n", totals);
        }
        double seconds = report.contains("run") ? report["run"]["durationMs"].get<double>() / 1000.0 : 0.0;
        for (DOMElement* element : {root, suite}) {
            setAttribute(element, "name", policy);
            setAttribute(element, "tests", std::to_string(totals.tests));
            setAttribute(element, "failures", std::to_string(totals.failures));
            setAttribute(element, "errors", "0");
            setAttribute(element, "skipped", std::to_string(totals.skipped));
            setAttribute(element, "time", std::to_string(seconds));
        }
        if (report.contains("run")) {
            setAttribute(suite, "timestamp", report["run"]["startTime"].get<std::string>());
            setAttribute(suite, "hostname", report["run"]["hostName"].get<std::string>());
        }
        std::unique_ptr<DOMLSSerializer, void (*)(DOMLSSerializer*)> serializer(
            implementation->createLSSerializer(), [](DOMLSSerializer* s) { s->release(); });
        serializer->getDomConfig()->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
        std::unique_ptr<DOMLSOutput, void (*)(DOMLSOutput*)> output(implementation->createLSOutput(),
                                                                    [](DOMLSOutput* o) { o->release(); });
        MemBufFormatTarget target;
        output->setByteStream(&target);
        output->setEncoding(Wide("UTF-8").get());
        try {
            if (serializer->write(document.get(), output.get())) {
                xml.assign(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
            } else {
                why = "the XML serializer refused the document";
            }
        } catch (const DOMException&) {
            why = "the XML serializer failed";
        } catch (const XMLException&) {
            why = "the XML serializer failed";
        }
    }
    XMLPlatformUtils::Terminate();
    if (xml.empty()) {
        return Failure{why};
    }
    return xml;
}

}  // namespace tvpolicy::cli
