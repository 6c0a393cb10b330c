#pragma once

#include <string>
#include <type_traits>

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/XmlPlatform.h"

// Small DOM helpers shared by the readers of DOM documents.
namespace tvpolicy::xml {

// Names are written as u"..." literals of the parser's own character type.
static_assert(std::is_same_v<XMLCh, char16_t>, "the XML parser must use char16_t characters");

/// A string of the parser's 16-bit code units.
using XmlString = std::basic_string<XMLCh>;

/// The text content of `node` as DOMNode::getTextContent() gives it (all text and CDATA below it,
/// in document order, comments and processing instructions left out), gathered by walking the
/// subtree iteratively: the depth of the tree costs no stack.
XmlString textContent(const xercesc::DOMNode* node);

/// The local name of `node`, or its node name when it was built without namespaces.
const XMLCh* localNameOf(const xercesc::DOMNode* node);

/// True when `name` (possibly null) equals `expected`.
bool sameName(const XMLCh* name, const XMLCh* expected);

/// A UTF-16 copy of a byte string, made with the parser's transcode (code page of the process),
/// released on destruction. Meant for names and namespace URIs, which are ASCII.
class WideText {
public:
    explicit WideText(const char* text) : text_((ensurePlatform(), xercesc::XMLString::transcode(text))) {}
    ~WideText() { xercesc::XMLString::release(&text_); }
    WideText(const WideText&) = delete;
    WideText& operator=(const WideText&) = delete;

    const XMLCh* get() const { return text_; }
    operator const XMLCh*() const { return text_; }

private:
    XMLCh* text_;
};

/// The parser's own transcode of a 16-bit string to the code page of the process (what
/// XMLString::transcode gives), as a std::string; null gives "".
std::string nativeText(const XMLCh* text);

}  // namespace tvpolicy::xml

namespace tvpolicy::xml {

/// Calls `visit(localName, element)` for each child element of `node`, in document order.
template <typename Visit>
void forEachChildElement(const xercesc::DOMNode* node, Visit&& visit)
{
    if (node == nullptr) {
        return;
    }
    for (xercesc::DOMNode* child = node->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        if (child->getNodeType() == xercesc::DOMNode::ELEMENT_NODE) {
            visit(localNameOf(child), child);
        }
    }
}

}  // namespace tvpolicy::xml
