#include <tvpolicy/agent/AgentConfigXML.h>

#include <tvpolicy/agent/AgentSchema.h>

#include "agent/AgentDocument.h"
#include "xml/DomText.h"
#include "xml/ElementIndex.h"

namespace com::torvane {

using namespace xercesc;

namespace {

using Config = AgentConfigXML;

// The single-valued elements, in the order they are read. Up to showFinished the first match
// counts; from rescanText on the last one does, as extractTextByTagName reads them. A flag is
// true for the exact text "true". Elements are looked up anywhere in the document.
struct Element {
    const XMLCh* name;
    std::string Config::*text;
    bool Config::*flag;
    bool lastWins;
};
const Element elements[] = {
    {u"loginUrl", &Config::loginUrl, nullptr, false},
    {u"message", &Config::message, nullptr, false},
    {u"submitText", &Config::submitText, nullptr, false},
    {u"loginRequired", nullptr, &Config::loginRequired, false},
    {u"scanUrl", &Config::scanUrl, nullptr, false},
    {u"uid", &Config::uid, nullptr, false},
    {u"showPassedTests", nullptr, &Config::showPassedTests, false},
    {u"showIntro", nullptr, &Config::showIntro, false},
    {u"showFinished", nullptr, &Config::showFinished, false},
    {u"rescanText", &Config::rescanText, nullptr, true},
    {u"cancelText", &Config::cancelText, nullptr, true},
    {u"finishText", &Config::finishText, nullptr, true},
    {u"resultsText", &Config::resultsText, nullptr, true},
    {u"successText", &Config::successText, nullptr, true},
    {u"showSuccess", nullptr, &Config::showSuccess, true},
    {u"sjLoginTitle", &Config::sjLoginTitle, nullptr, true},
    {u"sjLoginMessage", &Config::sjLoginMessage, nullptr, true},
    {u"connTestURL", &Config::connTestURL, nullptr, true},
};
const XMLCh fieldName[] = u"field";

std::vector<const XMLCh*> indexedNames()
{
    std::vector<const XMLCh*> names{fieldName};
    for (const Element& rule : elements) {
        names.push_back(rule.name);
    }
    return names;
}

}  // namespace

AgentConfigXML::AgentConfigXML()
    : sjLoginTitle("Network Credentials - Dissolvable Agent"),
      sjLoginMessage("Please Re-Enter Your Credentials"),
      showIntro(true),
      showFinished(true)
{
}

AgentConfigXML::AgentConfigXML(const AgentConfigXML* other) : AgentConfigXML()
{
    if (other != nullptr) {
        *this = *other;  // the fields' shared pointers are copied, so the fields are shared
    }
}

AgentConfigXML::AgentConfigXML(std::shared_ptr<AgentConfigXML> other)
{
    if (other) {
        AgentConfigXML discarded(other.get());
        (void)discarded;
    }
}

std::shared_ptr<LoginField> AgentConfigXML::getField(std::string name)
{
    auto found = fields.find(name);
    return found != fields.end() ? found->second : nullptr;
}

std::shared_ptr<AgentConfigXML> AgentConfigXML::parse(std::string xmlText)
{
    tvpolicy::xml::DocumentPtr doc = detail::parseAgentDocument(xmlText, "Config");
    auto config = std::make_shared<AgentConfigXML>();
    if (!doc) {
        return config;
    }
    TV_XMLTranscoder transcoder("UTF-8");
    tvpolicy::xml::WideText ns(agentSchemaNamespace);
    // One walk of the document finds every element read below, in document order.
    tvpolicy::xml::ElementIndex index(doc.get(), ns, indexedNames());

    for (DOMElement* element : index.all(fieldName)) {
        std::shared_ptr<LoginField> field = LoginField::parseNode(element);
        config->fields[field->getName()] = field;
        config->fieldList.push_back(field);
    }
    for (const Element& rule : elements) {
        DOMElement* element = rule.lastWins ? index.last(rule.name) : index.first(rule.name);
        if (element == nullptr) {
            continue;  // absent: the member keeps its default
        }
        std::string text = detail::utf8TextOf(element, transcoder);
        if (rule.text != nullptr) {
            config.get()->*rule.text = std::move(text);
        } else {
            config.get()->*rule.flag = text == "true";
        }
    }
    return config;
}

}  // namespace com::torvane
