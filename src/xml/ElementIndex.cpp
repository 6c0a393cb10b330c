#include "xml/ElementIndex.h"

#include <stdexcept>
#include <unordered_map>
#include <utility>

#include <xercesc/util/XMLString.hpp>

namespace tvpolicy::xml {

using namespace xercesc;

namespace {

constexpr int unwanted = -1;

/// The next element after `current` in document order, below `root`; null at the end.
DOMElement* nextElement(const DOMNode* root, DOMElement* current)
{
    if (DOMElement* child = current->getFirstElementChild()) {
        return child;
    }
    for (const DOMNode* node = current; node != nullptr && node != root; node = node->getParentNode()) {
        if (node->getNodeType() == DOMNode::ELEMENT_NODE) {
            if (DOMElement* sibling = static_cast<const DOMElement*>(node)->getNextElementSibling()) {
                return sibling;
            }
        }
    }
    return nullptr;
}

bool equal(const XMLCh* a, const XMLCh* b)
{
    return a == b || (a != nullptr && b != nullptr && XMLString::equals(a, b));
}

}  // namespace

ElementIndex::ElementIndex(const DOMDocument* doc, const XMLCh* namespaceUri, std::vector<const XMLCh*> names)
    : names_(std::move(names)),
      found_(names_.size())
{
    if (doc == nullptr || doc->getDocumentElement() == nullptr) {
        return;
    }
    // The document pools its names, so equal names mostly share one pointer: each distinct
    // (namespace, local name) pointer pair is compared by content once.
    struct PairHash {
        std::size_t operator()(const std::pair<const XMLCh*, const XMLCh*>& key) const
        {
            return std::hash<const void*>()(key.first) * 31 + std::hash<const void*>()(key.second);
        }
    };
    std::unordered_map<std::pair<const XMLCh*, const XMLCh*>, int, PairHash> slots;
    auto slotOf = [&](const XMLCh* ns, const XMLCh* local) {
        auto [entry, fresh] = slots.try_emplace({ns, local}, unwanted);
        if (fresh && local != nullptr && equal(ns, namespaceUri)) {
            for (std::size_t i = 0; i < names_.size(); ++i) {
                if (XMLString::equals(local, names_[i])) {
                    entry->second = static_cast<int>(i);
                    break;
                }
            }
        }
        return entry->second;
    };

    const DOMNode* root = doc;
    for (DOMElement* element = doc->getDocumentElement(); element != nullptr; element = nextElement(root, element)) {
        int slot = slotOf(element->getNamespaceURI(), element->getLocalName());
        if (slot != unwanted) {
            found_[static_cast<std::size_t>(slot)].push_back(element);
        }
    }
}

const std::vector<DOMElement*>& ElementIndex::all(const XMLCh* name) const
{
    for (std::size_t i = 0; i < names_.size(); ++i) {
        if (XMLString::equals(names_[i], name)) {
            return found_[i];
        }
    }
    throw std::logic_error("ElementIndex: name not indexed");
}

DOMElement* ElementIndex::first(const XMLCh* name) const
{
    const auto& elements = all(name);
    return elements.empty() ? nullptr : elements.front();
}

DOMElement* ElementIndex::last(const XMLCh* name) const
{
    const auto& elements = all(name);
    return elements.empty() ? nullptr : elements.back();
}

}  // namespace tvpolicy::xml
