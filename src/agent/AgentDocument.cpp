#include "agent/AgentDocument.h"

#include <xercesc/dom/DOMNodeList.hpp>

#include <tvpolicy/agent/ParseErrorHandler.h>

#include "xml/DomText.h"

namespace com::torvane::detail {

using namespace xercesc;

tvpolicy::xml::DocumentPtr parseAgentDocument(const std::string& text, const char* systemId)
{
    ParseErrorHandler errors;
    return tvpolicy::xml::parseDocument(text, {systemId, true}, errors);
}

std::string utf8TextOf(const DOMNode* node, TV_XMLTranscoder& transcoder)
{
    std::string text;
    transcoder.transcodeToStdString(tvpolicy::xml::textContent(node).c_str(), text);
    return text;
}

std::string nativeTextOf(const DOMNode* node)
{
    return tvpolicy::xml::nativeText(tvpolicy::xml::textContent(node).c_str());
}

DOMNode* firstElementNS(DOMDocument* doc, const XMLCh* namespaceUri, const XMLCh* name)
{
    DOMNodeList* matches = doc->getElementsByTagNameNS(namespaceUri, name);
    return matches != nullptr ? matches->item(0) : nullptr;
}

}  // namespace com::torvane::detail
