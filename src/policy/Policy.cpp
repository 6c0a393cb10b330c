#include <tvpolicy/policy/Policy.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Section.h>

#include "base/LogLine.h"
#include "policy/MarkupTrim.h"
#include "policy/ParseGuard.h"
#include "policy/ParseMessages.h"
#include "policy/ProgressiveParse.h"
#include "xml/DocumentLimits.h"
#include "xml/ReleasingMemoryInput.h"
#include "xml/XmlPlatform.h"
#include "xml/XmlText.h"

using namespace xercesc;
using tvpolicy::xml::utf8;

namespace {

bool allWhiteSpace(const std::string& text) { return text.find_first_not_of(" \t\r\n") == std::string::npos; }

std::string sectionKey(std::uint32_t count, const std::string& name)
{
    char ordinal[16];
    std::snprintf(ordinal, sizeof ordinal, "%.3d", static_cast<int>(count));
    return ordinal + name;
}

}  // namespace

Policy::Policy(std::string url, SAX2XMLReader* parser) : policyUrl(std::move(url)), reader(parser) {}

Policy::~Policy()
{
    // In the order they were made in, with their checks: memory goes back front to back
    // instead of at random, which frees it faster.
    for (Section* item : owned) {
        delete item;
    }
}

Policy* Policy::parseFromString(std::string xml, bool showErrors)
{
    tvpolicy::xml::ensurePlatform();
    if (xml.size() > tvpolicy::xml::maxDocumentBytes) {
        return refuseOversized(xml.size(), showErrors);
    }
    // A parse logs several lines per element: they reach the log in large writes.
    tvi::LogBatch batch;
    tvi::LogLine(std::clog) << xml;
    std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader());
    reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, false);
    reader->setFeature(XMLUni::fgXercesSchema, false);
    reader->setFeature(XMLUni::fgXercesSchemaFullChecking, false);
    reader->setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, false);
    tvpolicy::xml::harden(*reader);

    auto* policy = new Policy("", reader.get());
    policy->showErrors = showErrors;
    reader->setContentHandler(policy);
    reader->setErrorHandler(policy);

    const XMLCh* encoding = tvpolicy::policy::trimToMarkup(xml);
    // `xml` outlives the parse and is read by nothing after it: no second copy of the document,
    // and what the reader has passed is handed back to the system as it goes.
    tvpolicy::xml::ReleasingMemoryInput source(xml, "policy");
    if (encoding != nullptr) {
        source.setEncoding(encoding);
    }
    tvpolicy::policy::ParseGuard guard;
    policy->guard = &guard;
    try {
        tvpolicy::policy::parseProgressively(*reader, source,
                                             [&] { return policy->fatalParseError || guard.refused(); });
    } catch (const XMLException& failure) {
        policy->fatalError(SAXParseException(failure.getMessage(), nullptr, nullptr, 0, 0));
    }
    policy->guard = nullptr;
    policy->reader = nullptr;
    return policy;
}

Policy* Policy::refuseOversized(std::size_t size, bool showErrors)
{
    std::string why = "the policy is " + std::to_string(size) + " bytes long, more than the " +
                      std::to_string(tvpolicy::xml::maxDocumentBytes) + " bytes a policy may have";
    tvi::LogLine(std::clog) << "Policy refused unread: " << why;
    auto* policy = new Policy("", nullptr);
    policy->showErrors = showErrors;
    // As a document that could not be read at all: a fatal error at its first line.
    policy->fatalError(SAXParseException(tvpolicy::xml::Utf16(why).get(), nullptr, nullptr, 1, 0));
    return policy;
}

bool Policy::parse()
{
    std::map<std::string, std::string> parts;
    splitURL(policyUrl, parts);
    tvi::LogLine(std::cout) << "Policy::parse: a policy is read from its text with parseFromString, not from '"
                            << policyUrl << "'";
    fatalParseError = true;
    return false;
}

void Policy::connect(std::function<void(std::shared_ptr<std::string>)> slot) { signal.connect(std::move(slot)); }

void Policy::announce(std::string sectionName, const Section* section)
{
    announcedSection = section;
    signal.fire(std::make_shared<std::string>(std::move(sectionName)));
    announcedSection = nullptr;
}

void Policy::store(std::map<std::string, Section*>& into, const std::string& key, Section* item)
{
    into[key] = item;
    owned.push_back(item);
}

std::string Policy::getExtraInfo(const std::string& elementName) const
{
    auto found = extraInfo.find(elementName);
    return found != extraInfo.end() ? found->second : std::string();
}

std::string Policy::absolute(const std::string& url) const
{
    return url.find("http://") != std::string::npos ? url : baseUrl + url;
}

std::string Policy::getSuccessUrl() const { return absolute(successUrl); }
std::string Policy::getFailureUrl() const { return absolute(failureUrl); }
std::string Policy::getInitUrl() const { return absolute(initUrl); }
std::string Policy::getProgressUrl() const { return absolute(progressUrl); }
std::string Policy::getResultsUrl() const { return absolute(resultsUrl); }
std::string Policy::getSupplicantUrl() const { return absolute(supplicantUrl); }

TaskResponse* Policy::getCachedResult(const std::string& key) const
{
    if (key.empty()) {
        return nullptr;
    }
    auto found = cachedResults.find(key);
    return found != cachedResults.end() ? found->second : nullptr;
}

void Policy::addCachedResult(const std::string& key, TaskResponse* response)
{
    if (!key.empty()) {
        cachedResults[key] = response;
    }
}

void Policy::debug(std::string message)
{
    tvi::LogLine(std::clog) << message;
    if (debugFlag) {
        ::debug(message, baseUrl + "Debug.jsp");
        if (debugFile.is_open()) {
            tvi::LogLine(debugFile) << message;
        }
    }
}

void Policy::setDebug(const char* text)
{
    debugFlag = text != nullptr && std::string(text) == "true";
    if (!debugFlag) {
        return;
    }
    const char* temp = std::getenv("temp");
    if (temp != nullptr && !debugFile.is_open()) {
        debugFile.open(std::string(temp) + "\\csalog.txt", std::ios::out | std::ios::trunc);
    }
}

void Policy::setDocumentLocator(const Locator* locator)
{
    if (guard != nullptr) {
        guard->setLocator(locator);
    }
}

void Policy::startElement(const XMLCh*, const XMLCh* localname, const XMLCh* qname, const Attributes& attributes)
{
    if (guard != nullptr && !guard->enter(attributes)) {
        fatalError(guard->refusalError());
        return;
    }
    bool fromQName = false;
    std::string element = tvpolicy::xml::elementName(localname, qname, fromQName);
    tvi::LogLine(std::clog) << (fromQName ? "startElement qname = " : "startElement localname = ") << element;
    currentElement = element;
    if (rootElement.empty()) {
        rootElement = element;
    }
    if (element == "auditOnly") {
        auditOnly = true;
    } else if (element == "registerFailedRogue") {
        registerFailedRogue = true;
    } else if (element == "option") {
        startOption(attributes);
    } else if (element == "include") {
        startInclude(attributes);
    } else if (element == "policy") {
        for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
            std::string attribute = utf8(attributes.getQName(i));
            std::string value = utf8(attributes.getValue(i));
            tvi::LogLine(std::clog) << "name = " << attribute << " value = " << value;
            if (attribute == "name") {
                name = value;
            } else if (attribute == "base") {
                baseUrl = value;
            }
        }
    } else if (element == "results") {
        inResults = true;
    } else if (element == "success") {
        inSuccess = true;
    } else if (element == "failure") {
        inFailure = true;
    } else if (element == "url") {
        inUrl = true;
    } else if (element == "init") {
        inInit = true;
    } else if (element == "progress") {
        inProgress = true;
    } else if (element == "supplicant") {
        inSupplicant = true;
    } else if (element == "section") {
        startSection(attributes);
    }
}

void Policy::startOption(const Attributes& attributes)
{
    auto* option = new Option(this);
    owned.push_back(option);  // also when it has no name, and so no key
    option->setLocation(guard != nullptr ? guard->location() : tvpolicy::SourceLocation{});
    currentOption = option;
    std::string optionName, instructions, preferred;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        std::string attribute = utf8(attributes.getQName(i));
        std::string value = utf8(attributes.getValue(i));
        if (attribute == "id" || attribute == "name") {
            optionName = value;
        } else if (attribute == "instr") {
            instructions = value;
        } else if (attribute == "preferred") {
            preferred = value;
        } else if (attribute == "type") {
            option->setLogicalType(value);
        }
    }
    if (!optionName.empty()) {
        option->setName(optionName);
        items["000" + optionName] = option;
    }
    if (!instructions.empty()) {
        option->setInstructionsUrl(instructions);
    }
    option->setPreferred(preferred);
}

void Policy::startInclude(const Attributes& attributes)
{
    std::string id, url;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        std::string attribute = utf8(attributes.getQName(i));
        if (attribute == "id") {
            id = utf8(attributes.getValue(i));
        } else if (attribute == "url") {
            url = utf8(attributes.getValue(i));
        }
    }
    if (url.empty()) {
        return;
    }
    auto* section = new Section(url);
    section->setLocation(guard != nullptr ? guard->location() : tvpolicy::SourceLocation{});
    if (currentOption != nullptr) {
        currentOption->addSection(id, section);
    } else {
        store(items, id, section);
    }
}

void Policy::startSection(const Attributes& attributes)
{
    ++sectionCount;
    auto* section = new Section(this);
    section->setLocation(guard != nullptr ? guard->location() : tvpolicy::SourceLocation{});
    section->setCustomScan(false);
    section->setWarning(false);
    std::string sectionName, instructions, group;
    bool prohibit = false;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        std::string attribute = utf8(attributes.getQName(i));
        std::string value = utf8(attributes.getValue(i));
        if (attribute == "name") {
            sectionName = value;
        } else if (attribute == "instr") {
            instructions = value;
        } else if (attribute == "group") {
            group = value;
        } else if (attribute == "prohibit") {
            prohibit = value == "true";
        } else if (attribute == "custom") {
            section->setCustomScan(value == "true");
        } else if (attribute == "severity") {
            section->setWarning(value == "warning");
        } else if (attribute == "primary") {
            section->setPrimary(value == "true");
        }
    }
    section->setName(sectionName);
    section->setInstructionsUrl(instructions);
    section->setGroup(group);
    groupCounts[group] += 1;
    section->setProhibit(prohibit);
    std::string key = sectionKey(sectionCount, sectionName);
    if (currentOption != nullptr) {
        currentOption->addSection(key, section);
    } else {
        store(items, key, section);
    }
    section->guard = guard;
    if (reader != nullptr) {
        reader->setContentHandler(section);
    }
}

void Policy::endElement(const XMLCh*, const XMLCh* localname, const XMLCh* qname)
{
    if (!tvpolicy::policy::leaveElement(guard)) {
        return;
    }
    bool fromQName = false;
    std::string element = tvpolicy::xml::elementName(localname, qname, fromQName);
    tvi::LogLine(std::clog) << (fromQName ? "endElement qname = " : "endElement localname = ") << element;
    if (element == "success") {
        inSuccess = false;
    } else if (element == "init") {
        inInit = false;
    } else if (element == "progress") {
        inProgress = false;
    } else if (element == "results") {
        inResults = false;
    } else if (element == "failure") {
        inFailure = false;
    } else if (element == "supplicant") {
        inSupplicant = false;
    } else if (element == "url") {
        inUrl = false;
    } else if (element == "option") {
        currentOption = nullptr;
    }
}

void Policy::characters(const XMLCh* chars, const XMLSize_t length)
{
    std::string text = utf8(chars, length);
    tvi::LogLine(std::clog) << "Chars: " << text;
    std::string* container = inSuccess      ? &successUrl
                             : inFailure    ? &failureUrl
                             : inResults    ? &resultsUrl
                             : inInit       ? &initUrl
                             : inProgress   ? &progressUrl
                             : inSupplicant ? &supplicantUrl
                                            : nullptr;
    if (container != nullptr) {
        if (inUrl) {
            *container = text;
        }
        return;
    }
    if (allWhiteSpace(text)) {
        return;
    }
    if (currentElement == "ip" || currentElement == "primaryIP") {
        primaryIP = text;
    } else if (currentElement == "debug") {
        setDebug(text.c_str());
    } else if (currentElement == "renewip") {
        if (text == "false") {
            renewIP = false;
        }
    } else {
        extraInfo[currentElement] = text;
        if (!extraInformation.empty()) {
            extraInformation += "&";
        }
        extraInformation += currentElement + "=" + text;
    }
}

void Policy::warning(const SAXParseException& exception) { tvpolicy::policy::printParseNotice("warn", exception); }

void Policy::error(const SAXParseException& exception) { tvpolicy::policy::printParseNotice("err", exception); }

void Policy::fatalError(const SAXParseException& exception)
{
    fatalParseError = true;
    if (fatalErrorReason.empty()) {
        fatalErrorReason = utf8(exception.getMessage());
        fatalErrorLocation = {static_cast<std::uint64_t>(exception.getLineNumber()),
                              static_cast<std::uint64_t>(exception.getColumnNumber())};
    }
    char where[32];
    std::snprintf(where, sizeof where, "line: %d", static_cast<int>(exception.getLineNumber()));
    if (!showErrors) {
        return;
    }
    tvi::flushLogBatch();
    if (exception.getLineNumber() == 1) {
        fatalErrorMsg = "Unable to read policy.\r\n\r\nPlease check your personal firewall settings and try again.";
        std::cout << "Unable to read policy" << std::flush;
    } else {
        fatalErrorMsg = std::string("A configuration error has occurred at ") + where;
        std::cout << "Error,  " << utf8(exception.getMessage()) << "\n" << std::flush;
    }
}
