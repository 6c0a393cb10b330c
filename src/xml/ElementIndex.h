#pragma once

#include <vector>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>

namespace tvpolicy::xml {

/// The elements of a document with given local names in one namespace, each name's in document
/// order: what getElementsByTagNameNS gives for each name, gathered in one walk of the tree
/// instead of one walk per name.
class ElementIndex {
public:
    ElementIndex(const xercesc::DOMDocument* doc, const XMLCh* namespaceUri, std::vector<const XMLCh*> names);

    /// The elements named `name` (one of the names given), in document order.
    const std::vector<xercesc::DOMElement*>& all(const XMLCh* name) const;
    /// The first or last of them, or null when there is none.
    xercesc::DOMElement* first(const XMLCh* name) const;
    xercesc::DOMElement* last(const XMLCh* name) const;

private:
    std::vector<const XMLCh*> names_;
    std::vector<std::vector<xercesc::DOMElement*>> found_;
};

}  // namespace tvpolicy::xml
