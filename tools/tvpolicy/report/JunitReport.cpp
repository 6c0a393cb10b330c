#include "report/JunitReport.h"

#include <memory>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLString.hpp>

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
        std::string utf8 = Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace)).get<std::string>();
        TranscodeFromStr from(reinterpret_cast<const XMLByte*>(utf8.data()), utf8.size(), "UTF-8");
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

void addCases(DOMDocument* document, DOMElement* suite, const Json& item, const std::string& className, Totals& totals)
{
    if (item["kind"] == "option") {
        for (const Json& section : item["sections"]) {
            addCases(document, suite, section, className + "." + item["name"].get<std::string>(), totals);
        }
        return;
    }
    ++totals.tests;
    DOMElement* testCase = child(document, suite, "testcase");
    setAttribute(testCase, "name", item["name"].get<std::string>());
    setAttribute(testCase, "classname", className);
    unsigned status = item["status"].get<unsigned>();
    if (status == 0 || status == 4) {
        ++totals.skipped;
        DOMElement* skipped = child(document, testCase, "skipped");
        setAttribute(skipped, "message", item.contains("url") ? "included sections are never evaluated"
                                                              : item["statusText"].get<std::string>());
        return;
    }
    if (status == 1) {
        return;
    }
    ++totals.failures;
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
    if (!item["help"].get<std::string>().empty()) {
        details += "help: " + item["help"].get<std::string>() + "\n";
    }
    if (!item["instructionsUrl"].get<std::string>().empty()) {
        details += "instructions: " + item["instructionsUrl"].get<std::string>() + "\n";
    }
    DOMElement* failure = child(document, testCase, "failure");
    setAttribute(failure, "message", first.empty() ? item["statusText"].get<std::string>() : first);
    setAttribute(failure, "type", status == 5 ? "warning" : item["statusText"].get<std::string>());
    failure->appendChild(document->createTextNode(Wide(details).get()));
}

}  // namespace

std::string junitReport(const Json& report, std::string& why)
{
    XMLPlatformUtils::Initialize();
    std::string xml;
    {
        DOMImplementation* implementation = DOMImplementationRegistry::getDOMImplementation(Wide("LS").get());
        std::unique_ptr<DOMDocument, void (*)(DOMDocument*)> document(
            implementation->createDocument(nullptr, Wide("testsuites").get(), nullptr),
            [](DOMDocument* doc) { doc->release(); });
        DOMElement* root = document->getDocumentElement();
        std::string policy = report["policy"].get<std::string>();
        DOMElement* suite = child(document.get(), root, "testsuite");
        Totals totals;
        for (const Json& item : report["items"]) {
            addCases(document.get(), suite, item, policy.empty() ? "policy" : policy, totals);
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
    return xml;
}

}  // namespace tvpolicy::cli
