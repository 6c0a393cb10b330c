#include "xml/DomText.h"

#include <memory>

namespace tvpolicy::xml {

using namespace xercesc;

namespace {

bool carriesText(const DOMNode* node)
{
    DOMNode::NodeType type = node->getNodeType();
    return type == DOMNode::TEXT_NODE || type == DOMNode::CDATA_SECTION_NODE;
}

bool isContainer(const DOMNode* node)
{
    switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
    case DOMNode::ENTITY_REFERENCE_NODE:
    case DOMNode::DOCUMENT_FRAGMENT_NODE:
    case DOMNode::ENTITY_NODE:
    case DOMNode::ATTRIBUTE_NODE: return true;
    default: return false;
    }
}

}  // namespace

XmlString textContent(const DOMNode* node)
{
    XmlString text;
    if (node == nullptr) {
        return text;
    }
    if (carriesText(node) || node->getNodeType() == DOMNode::COMMENT_NODE ||
        node->getNodeType() == DOMNode::PROCESSING_INSTRUCTION_NODE) {
        const XMLCh* value = node->getNodeValue();
        return value != nullptr ? XmlString(value) : text;
    }
    if (!isContainer(node)) {
        return text;  // a document or document type has no text content
    }
    // Depth-first walk below `node`, climbing back through parents instead of a stack.
    const DOMNode* current = node->getFirstChild();
    while (current != nullptr) {
        if (carriesText(current)) {
            if (const XMLCh* value = current->getNodeValue()) {
                text += value;
            }
        } else if (isContainer(current) && current->getFirstChild() != nullptr) {
            current = current->getFirstChild();
            continue;
        }
        while (current != node && current->getNextSibling() == nullptr) {
            current = current->getParentNode();
        }
        if (current == node) {
            break;
        }
        current = current->getNextSibling();
    }
    return text;
}

const XMLCh* localNameOf(const DOMNode* node)
{
    const XMLCh* local = node->getLocalName();
    return local != nullptr ? local : node->getNodeName();
}

bool sameName(const XMLCh* name, const XMLCh* expected) { return name != nullptr && XMLString::equals(name, expected); }

std::string nativeText(const XMLCh* text)
{
    if (text == nullptr) {
        return std::string();
    }
    ensurePlatform();
    struct Release {
        void operator()(char* buffer) const { XMLString::release(&buffer); }
    };
    std::unique_ptr<char, Release> narrow(XMLString::transcode(text));
    return narrow ? std::string(narrow.get()) : std::string();
}

}  // namespace tvpolicy::xml
