#include "policy/AgentDocumentScan.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>

#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/util/XMLString.hpp>

#include <tvpolicy/agent/AgentSchema.h>

#include "io/Joined.h"
#include "policy/UnreadElements.h"

namespace tvpolicy::cli {

namespace {

using namespace xercesc;

struct Element {
    std::string name;  // the local name
    bool agent = false;
    std::uint64_t line = 0;
    int parent = -1;
    std::string text;  // the element's own text, as it stands
};

std::string narrow(const XMLCh* text)
{
    std::unique_ptr<char[], void (*)(char*)> bytes(XMLString::transcode(text), [](char* p) { XMLString::release(&p); });
    return bytes ? std::string(bytes.get()) : std::string();
}

class ElementList : public DefaultHandler {
public:
    std::vector<Element> elements;

    void setDocumentLocator(const Locator* value) override { locator_ = value; }

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh*, const Attributes&) override
    {
        Element element;
        element.name = narrow(localName);
        element.agent = narrow(uri) == com::torvane::agentSchemaNamespace;
        element.line = locator_ != nullptr ? static_cast<std::uint64_t>(locator_->getLineNumber()) : 0;
        element.parent = open_.empty() ? -1 : open_.back();
        open_.push_back(static_cast<int>(elements.size()));
        elements.push_back(element);
    }

    void characters(const XMLCh* chars, const XMLSize_t length) override
    {
        if (!open_.empty()) {
            std::u16string piece(chars, chars + length);
            elements[static_cast<std::size_t>(open_.back())].text += narrow(piece.c_str());
        }
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { open_.pop_back(); }

private:
    const Locator* locator_ = nullptr;
    std::vector<int> open_;
};

// How the reader takes the elements of one name: the first one, the last one, or each.
enum class Take { first, last, each };

struct Rule {
    Take take;
    std::vector<std::string> words;  // the values it knows; empty: any text
    std::string otherwise;           // what an unknown value becomes
};

const std::vector<std::string> flagWords{"true", "false"};
const char* const readAsFalse = "read as false: only the exact text \"true\" is true";

// The configuration reader: elements anywhere in the agent namespace; a field's children and an
// option's children by their local names.
const std::map<std::string, Rule>& configRules()
{
    static const std::map<std::string, Rule> rules{{"loginUrl", {Take::first, {}, ""}},
                                                   {"message", {Take::first, {}, ""}},
                                                   {"submitText", {Take::first, {}, ""}},
                                                   {"loginRequired", {Take::first, flagWords, readAsFalse}},
                                                   {"scanUrl", {Take::first, {}, ""}},
                                                   {"uid", {Take::first, {}, ""}},
                                                   {"showPassedTests", {Take::first, flagWords, readAsFalse}},
                                                   {"showIntro", {Take::first, flagWords, readAsFalse}},
                                                   {"showFinished", {Take::first, flagWords, readAsFalse}},
                                                   {"rescanText", {Take::last, {}, ""}},
                                                   {"cancelText", {Take::last, {}, ""}},
                                                   {"finishText", {Take::last, {}, ""}},
                                                   {"resultsText", {Take::last, {}, ""}},
                                                   {"successText", {Take::last, {}, ""}},
                                                   {"showSuccess", {Take::last, flagWords, readAsFalse}},
                                                   {"sjLoginTitle", {Take::last, {}, ""}},
                                                   {"sjLoginMessage", {Take::last, {}, ""}},
                                                   {"connTestURL", {Take::last, {}, ""}},
                                                   {"field", {Take::each, {}, ""}}};
    return rules;
}

const std::map<std::string, Rule>& statusRules()
{
    static const std::map<std::string, Rule> rules{
        {"profile", {Take::first, {}, ""}},
        {"message", {Take::first, {}, ""}},
        {"scanName", {Take::first, {}, ""}},
        {"uid", {Take::first, {}, ""}},
        {"status",
         {Take::first,
          {"ERROR", "SUCCESS", "AUTH_FAILURE", "SCAN_FAILURE", "NEEDS_SCAN", "SCAN_SUCCESS", "NEEDS_SWIFTJOIN"},
          "read as ERROR"}}};
    return rules;
}

// The children of a field, of an option and of a profile, by local name.
const std::map<std::string, std::map<std::string, Rule>>& childRules()
{
    static const std::map<std::string, std::map<std::string, Rule>> rules{
        {"field",
         {{"label", {Take::last, {}, ""}},
          {"type", {Take::last, {"TEXT", "PASSWORD", "SELECT"}, "read as TEXT"}},
          {"option", {Take::each, {}, ""}}}},
        {"option", {{"name", {Take::last, {}, ""}}, {"value", {Take::last, {}, ""}}}},
        {"profile",
         {{"EAPConfig",
           {Take::last, {"TLS", "LEAP", "TTLS", "PEAP", "EAP_SIM"}, "passed over: the method stays as it was (TLS)"}},
          {"name", {Take::last, {}, ""}},
          {"SSID", {Take::last, {}, ""}},
          {"securityType",
           {Take::last,
            {"OPEN", "WEP", "WEP_ENTERPRISE", "WPA", "WPA_ENTERPRISE", "WPA2", "WPA2_ENTERPRISE"},
            "passed over: the security stays as it was (OPEN)"}},
          {"password", {Take::last, {}, ""}},
          {"configCipher", {Take::last, {"AES", "TKIP"}, "read as other"}},
          {"CAFingerprint", {Take::last, {}, ""}},
          {"validateServerCertWindows", {Take::last, flagWords, readAsFalse}}}}};
    return rules;
}

std::vector<std::string> namesOf(const std::map<std::string, Rule>& rules)
{
    std::vector<std::string> names;
    names.reserve(rules.size());
    for (const auto& entry : rules) {
        names.push_back(entry.first);
    }
    return names;
}

class Judge {
public:
    Judge(const std::vector<Element>& elements, std::string reader) : elements_(elements), reader_(std::move(reader))
    {
        read_.assign(elements.size(), false);
    }

    std::vector<Notice> notices;

    // Elements of `rules` wherever they stand in the agent namespace, each taken by its rule.
    void readAnywhere(const std::map<std::string, Rule>& rules)
    {
        for (const auto& [name, rule] : rules) {
            std::vector<std::size_t> found;
            for (std::size_t i = 0; i < elements_.size(); ++i) {
                if (elements_[i].agent && elements_[i].name == name) {
                    found.push_back(i);
                }
            }
            take(found, name, rule);
        }
    }

    // The children of element `parent`, by `rules`; the children of those that have rules of
    // their own, in turn.
    void readChildren(std::size_t parent, const std::map<std::string, Rule>& rules)
    {
        read_[parent] = true;
        std::map<std::string, std::vector<std::size_t>> byName;
        for (std::size_t i = parent + 1; i < elements_.size(); ++i) {
            if (elements_[i].parent != static_cast<int>(parent)) {
                continue;
            }
            if (rules.count(elements_[i].name) == 0) {
                unknown(i, namesOf(rules),
                        "<" + elements_[parent].name + "> at line " + std::to_string(elements_[parent].line));
                continue;
            }
            byName[elements_[i].name].push_back(i);
        }
        for (const auto& [name, found] : byName) {
            take(found, name, rules.at(name));
        }
    }

    // Agent elements that nothing read and that hold nothing read (a wrapper of read elements
    // is harmless), outside the read elements' text; and every element of another namespace.
    void unreadElsewhere(const std::vector<std::string>& known, std::size_t root)
    {
        std::vector<bool> holdsRead(elements_.size(), false);
        for (std::size_t i = elements_.size(); i-- > 0;) {
            if ((read_[i] || holdsRead[i]) && elements_[i].parent >= 0) {
                holdsRead[static_cast<std::size_t>(elements_[i].parent)] = true;
            }
        }
        for (std::size_t i = 0; i < elements_.size(); ++i) {
            if (i == root || read_[i] || holdsRead[i] || withinRead(i) || reported(i)) {
                continue;
            }
            unknown(i, known, "");
        }
    }

private:
    void take(const std::vector<std::size_t>& found, const std::string& name, const Rule& rule)
    {
        for (std::size_t n = 0; n < found.size(); ++n) {
            std::size_t i = found[n];
            bool counts = rule.take == Take::each || (rule.take == Take::first ? n == 0 : n + 1 == found.size());
            if (!counts) {
                std::size_t winner = rule.take == Take::first ? found.front() : found.back();
                add(i, "another <" + name + ">: " + reader_ + " reads only the " +
                           (rule.take == Take::first ? "first" : "last") + " one, at line " +
                           std::to_string(elements_[winner].line) + ", so this one changes nothing");
                continue;
            }
            read_[i] = true;
            if (!rule.words.empty() &&
                std::find(rule.words.begin(), rule.words.end(), elements_[i].text) == rule.words.end()) {
                add(i, "<" + name + "> holds \"" + elements_[i].text + "\", not a value " + reader_ + " knows (" +
                           joined(rule.words, ", ") + "; exact and case-sensitive): " + rule.otherwise);
            }
            auto nested = childRules().find(name);
            if (nested != childRules().end()) {
                readChildren(i, nested->second);
            }
        }
    }

    void unknown(std::size_t i, const std::vector<std::string>& known, const std::string& where)
    {
        const Element& element = elements_[i];
        if (!element.agent && element.parent >= 0 && elements_[static_cast<std::size_t>(element.parent)].agent &&
            where.empty()) {
            add(i, "<" + element.name + "> is not in the agent namespace " + com::torvane::agentSchemaNamespace + ": " +
                       reader_ + " does not see it");
            return;
        }
        std::string suggestion = closestName(element.name, known);
        add(i, "<" + element.name + ">" + (where.empty() ? "" : " in " + where) + " is not an element " + reader_ +
                   " reads: it was passed over" +
                   (suggestion.empty() ? std::string() : " (did you mean <" + suggestion + ">?)"));
    }

    void add(std::size_t i, const std::string& message)
    {
        notices.push_back({"unknown-element", true, elements_[i].line, "", message});
        reportedAt_.push_back(i);
    }

    bool reported(std::size_t i) const
    {
        return std::find(reportedAt_.begin(), reportedAt_.end(), i) != reportedAt_.end();
    }

    // Whether element i lies inside a read element: part of its text, or judged already by the
    // rules for its children.
    bool withinRead(std::size_t i) const
    {
        for (int p = elements_[i].parent; p >= 0; p = elements_[static_cast<std::size_t>(p)].parent) {
            if (read_[static_cast<std::size_t>(p)]) {
                return true;
            }
        }
        return false;
    }

    const std::vector<Element>& elements_;
    std::string reader_;
    std::vector<bool> read_;
    std::vector<std::size_t> reportedAt_;
};

bool byLine(const Notice& a, const Notice& b) { return a.line < b.line; }

}  // namespace

std::vector<Notice> agentDocumentNotices(const std::string& kind, const std::string& text)
{
    ElementList list;
    scanDocument(text, list, true);
    const std::vector<Element>& elements = list.elements;
    if (elements.empty()) {
        return {};
    }
    std::vector<Notice> notices;
    if (kind == "profile") {
        Judge judge(elements, "the profile reader");
        std::size_t profile = 0;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            if (elements[i].agent && elements[i].name == "profile") {
                profile = i;
                break;
            }
        }
        judge.readChildren(profile, childRules().at("profile"));
        for (std::size_t i = profile + 1; i < elements.size(); ++i) {
            if (elements[i].agent && elements[i].name == "profile") {
                judge.notices.push_back({"unknown-element", true, elements[i].line, "",
                                         "a second <profile>: only the first one, at line " +
                                             std::to_string(elements[profile].line) + ", is read"});
            }
        }
        notices = judge.notices;
    } else {
        const bool config = kind == "config";
        Judge judge(elements, config ? "the configuration reader" : "the status reader");
        const auto& rules = config ? configRules() : statusRules();
        judge.readAnywhere(rules);
        judge.unreadElsewhere(namesOf(rules), 0);
        notices = judge.notices;
    }
    std::stable_sort(notices.begin(), notices.end(), byLine);
    return notices;
}

}  // namespace tvpolicy::cli
