#pragma once

#include <memory>
#include <string>

#include <xercesc/dom/DOMElement.hpp>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include <tvpolicy/agent/TV_XMLTranscoder.h>

#include "xml/DomReader.h"

// What the readers of the agent's documents (configuration, status reply, login field, Wi-Fi
// profile) share.
namespace com::torvane::detail {

/// Parses an agent document: namespaces on, problems logged by a ParseErrorHandler.
tvpolicy::xml::DocumentPtr parseAgentDocument(const std::string& text, const char* systemId);

/// `Reader::parseNode` applied to the document element of `text`; empty when the text gives no
/// document element.
template <typename Reader>
std::shared_ptr<Reader> parseDocumentElement(const std::string& text, const char* systemId)
{
    tvpolicy::xml::DocumentPtr doc = parseAgentDocument(text, systemId);
    if (!doc || doc->getDocumentElement() == nullptr) {
        return nullptr;
    }
    return Reader::parseNode(doc->getDocumentElement());
}

/// The text content of `node` in UTF-8.
std::string utf8TextOf(const xercesc::DOMNode* node, TV_XMLTranscoder& transcoder);
/// The text content of `node` through the parser's own transcode (the process's code page).
std::string nativeTextOf(const xercesc::DOMNode* node);

/// The first element of `doc` named `name` in `namespaceUri`, anywhere in it, or null.
xercesc::DOMNode* firstElementNS(xercesc::DOMDocument* doc, const XMLCh* namespaceUri, const XMLCh* name);

}  // namespace com::torvane::detail
