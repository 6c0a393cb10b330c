#include <tvpolicy/agent/AgentStatusXML.h>

#include <tvpolicy/agent/AgentSchema.h>

#include "agent/AgentDocument.h"
#include "xml/DomText.h"

namespace com::torvane {

using namespace xercesc;

namespace {

// Status words in the order they are tried.
const std::pair<const char*, AgentStatusXML::Status> statusWords[] = {
    {"ERROR", AgentStatusXML::ERROR},
    {"SUCCESS", AgentStatusXML::SUCCESS},
    {"AUTH_FAILURE", AgentStatusXML::AUTH_FAILURE},
    {"SCAN_FAILURE", AgentStatusXML::SCAN_FAILURE},
    {"NEEDS_SCAN", AgentStatusXML::NEEDS_SCAN},
    {"SCAN_SUCCESS", AgentStatusXML::SCAN_SUCCESS},
    {"NEEDS_SWIFTJOIN", AgentStatusXML::NEEDS_SWIFTJOIN},
};

AgentStatusXML::Status statusOf(const std::string& word)
{
    for (const auto& [text, status] : statusWords) {
        if (word == text) {
            return status;
        }
    }
    return AgentStatusXML::ERROR;
}

}  // namespace

AgentStatusXML::AgentStatusXML(std::shared_ptr<AgentStatusXML> other)
{
    if (other) {
        *this = *other;
    }
}

std::shared_ptr<AgentStatusXML> AgentStatusXML::parse(std::string xmlText)
{
    tvpolicy::xml::DocumentPtr doc = detail::parseAgentDocument(xmlText, "Config");
    auto reply = std::make_shared<AgentStatusXML>();
    if (!doc) {
        return reply;
    }
    tvpolicy::xml::WideText ns(agentSchemaNamespace);
    auto first = [&](const XMLCh* name) { return detail::firstElementNS(doc.get(), ns, name); };

    if (DOMNode* profile = first(u"profile")) {
        reply->wifiProfile = WifiConfigurationProfile::parseNode(profile);
    }
    if (DOMNode* node = first(u"message")) {
        reply->message = detail::nativeTextOf(node);
    }
    if (DOMNode* node = first(u"scanName")) {
        reply->scanName = detail::nativeTextOf(node);
    }
    if (DOMNode* node = first(u"uid")) {
        reply->uid = detail::nativeTextOf(node);
    }
    if (DOMNode* node = first(u"status")) {
        reply->status = statusOf(detail::nativeTextOf(node));
    }
    return reply;
}

}  // namespace com::torvane
