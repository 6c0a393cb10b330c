#include "policy/UnreadElements.h"

#include <algorithm>
#include <cctype>
#include <memory>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

namespace tvpolicy::cli {

namespace {

using namespace xercesc;

// What the policy reader takes from the top level; the url elements belong to the report
// addresses (results, success, ...), which are passed over whole here.
const std::vector<std::string>& topLevelNames()
{
    static const std::vector<std::string> names{"section",    "option",  "include", "auditOnly", "registerFailedRogue",
                                                "results",    "success", "failure", "init",      "progress",
                                                "supplicant", "url",     "ip",      "primaryIP", "debug",
                                                "renewip"};
    return names;
}

const std::vector<std::string>& optionNames()
{
    static const std::vector<std::string> names{"section", "include"};
    return names;
}

std::string narrow(const XMLCh* text)
{
    std::unique_ptr<char[], void (*)(char*)> bytes(XMLString::transcode(text), [](char* p) { XMLString::release(&p); });
    return bytes ? std::string(bytes.get()) : std::string();
}

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

// Optimal string alignment distance: changes, additions, removals and swaps of neighbours.
std::size_t distance(const std::string& a, const std::string& b)
{
    std::vector<std::vector<std::size_t>> d(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        d[i][0] = i;
    }
    for (std::size_t j = 0; j <= b.size(); ++j) {
        d[0][j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t cost = a[i - 1] == b[j - 1] ? 0 : 1;
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
            }
        }
    }
    return d[a.size()][b.size()];
}

class Outline : public DefaultHandler {
public:
    std::vector<Notice> notices;

    void setDocumentLocator(const Locator* value) override { locator = value; }

    void startElement(const XMLCh*, const XMLCh*, const XMLCh* qname, const Attributes&) override
    {
        std::string element = narrow(qname);
        ++depth;
        if (skipFrom > 0) {
            return;  // inside an element passed over whole
        }
        // depth 1: <policy>; 2: its children; 3: the children of an option.
        bool underOption = depth == 3 && inOption;
        if (depth == 1 || (depth == 3 && !inOption) || depth > 3) {
            return;
        }
        const auto& known = underOption ? optionNames() : topLevelNames();
        if (std::find(known.begin(), known.end(), element) != known.end()) {
            if (element == "option" && depth == 2) {
                inOption = true;
            } else {
                skipFrom = depth;
            }
            return;
        }
        skipFrom = depth;
        pending = std::make_unique<Notice>();
        pending->kind = "unknown-element";
        pending->line = locator != nullptr ? static_cast<std::uint64_t>(locator->getLineNumber()) : 0;
        std::string suggestion = closestName(element, known);
        pending->message = "<" + element + "> under <" + (underOption ? "option" : "policy") +
                           "> is not an element the policy reader uses: it was passed over, not evaluated" +
                           (suggestion.empty() ? std::string() : " (did you mean <" + suggestion + ">?)");
    }

    void characters(const XMLCh* chars, const XMLSize_t length) override
    {
        // The reader turns an element's text into a name=value extra: not passed over, then.
        for (XMLSize_t i = 0; i < length && pending && depth == skipFrom; ++i) {
            if (chars[i] != u' ' && chars[i] != u'\t' && chars[i] != u'\r' && chars[i] != u'\n') {
                pending.reset();
            }
        }
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh* qname) override
    {
        if (pending && depth == skipFrom) {
            notices.push_back(*pending);
            pending.reset();
        }
        if (depth == skipFrom) {
            skipFrom = 0;
        } else if (depth == 2 && narrow(qname) == "option") {
            inOption = false;
        }
        --depth;
    }

private:
    const Locator* locator = nullptr;
    unsigned depth = 0;
    unsigned skipFrom = 0;
    bool inOption = false;
    std::unique_ptr<Notice> pending;
};

class MonitorOutline : public DefaultHandler {
public:
    MonitorScan scan;

    void setDocumentLocator(const Locator* value) override { locator = value; }

    void startElement(const XMLCh*, const XMLCh*, const XMLCh* qname, const Attributes& attributes) override
    {
        std::string element = narrow(qname);
        ++depth;
        if (scan.root.empty()) {
            scan.root = element;
        }
        std::uint64_t line = locator != nullptr ? static_cast<std::uint64_t>(locator->getLineNumber()) : 0;
        if (skipFrom > 0) {
            return;
        }
        if (element == "Monitor") {
            ++scan.monitors;
            monitorDepth = depth;
            monitor = "#" + std::to_string(scan.monitors);
            bool prohibit = false;
            for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
                std::string name = narrow(attributes.getQName(i));
                std::string value = narrow(attributes.getValue(i));
                if (name == "id") {
                    monitor = "'" + value + "'";
                } else if (name == "prohibit") {
                    prohibit = value == "true";
                }
            }
            for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
                std::string name = narrow(attributes.getQName(i));
                if (name != "id" && name != "period" && name != "prohibit") {
                    add(line, "unknown-attribute",
                        "attribute '" + name + "' of <Monitor> " + monitor +
                            " is not one that a monitor reads (id, period, prohibit): it changes nothing");
                }
            }
            if (prohibit) {
                scan.notes.push_back({"monitor-prohibit", true, line, "",
                                      "monitor " + monitor +
                                          " has prohibit=\"true\": it reports true while its checks fail, and also "
                                          "when it holds no check that could run"});
            }
            return;
        }
        if (monitorDepth == 0) {
            return;
        }
        std::string kind = element + "Task";
        if (TaskFactory::getMap().get(kind) == nullptr) {
            skipFrom = depth;
            add(line, "unknown-element",
                "<" + element + "> in monitor " + monitor +
                    " names no check kind: it was passed over, not evaluated (see tvpolicy tasks)");
            return;
        }
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
            std::string name = narrow(attributes.getQName(i));
            if (!tvpolicy::TaskCatalog::reads(kind, name)) {
                add(line, "unknown-attribute",
                    "attribute '" + name + "' of <" + element + "> in monitor " + monitor + " is not one that " +
                        element + " reads: it changes nothing (see tvpolicy tasks)");
            }
        }
        if (element != "and" && element != "or" && element != "not") {
            skipFrom = depth;  // only the composite kinds take terms
        }
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override
    {
        if (depth == skipFrom) {
            skipFrom = 0;
        }
        if (depth == monitorDepth) {
            monitorDepth = 0;
        }
        --depth;
    }

private:
    void add(std::uint64_t line, const char* kind, const std::string& message)
    {
        scan.notices.push_back({kind, true, line, "", message});
    }

    const Locator* locator = nullptr;
    unsigned depth = 0;
    unsigned skipFrom = 0;
    unsigned monitorDepth = 0;
    std::string monitor;
};

}  // namespace

void scanDocument(const std::string& text, xercesc::DefaultHandler& handler, bool namespaces)
{
    XMLPlatformUtils::Initialize();
    {
        std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader());
        reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, namespaces);
        reader->setFeature(XMLUni::fgXercesLoadExternalDTD, false);
        reader->setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
        reader->setContentHandler(&handler);
        reader->setErrorHandler(&handler);
        MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "document", false);
        try {
            reader->parse(source);
        } catch (...) {
            // What was seen up to here stands; the reader of the document says what is wrong.
        }
    }
    XMLPlatformUtils::Terminate();
}

MonitorScan scanMonitors(const std::string& text)
{
    MonitorOutline outline;
    scanDocument(text, outline);
    if (outline.scan.monitors == 0) {
        outline.scan.notices.push_back({"no-monitors", true, 0, "", "the document holds no <Monitor> element"});
    }
    return outline.scan;
}

std::string closestName(const std::string& word, const std::vector<std::string>& candidates)
{
    std::string best;
    std::size_t bestDistance = 3;
    for (const std::string& candidate : candidates) {
        std::size_t d = lower(word) == lower(candidate) ? 0 : distance(lower(word), lower(candidate));
        if (d < bestDistance && d < std::max<std::size_t>(candidate.size(), 2) - 1) {
            best = candidate;
            bestDistance = d;
        }
    }
    return best;
}

std::vector<Notice> unreadElements(const std::string& text)
{
    Outline outline;
    scanDocument(text, outline);
    return outline.notices;
}

}  // namespace tvpolicy::cli
