#include "host/parse/PropertyList.h"

#include <optional>

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>

#include "xml/DomReader.h"
#include "xml/DomText.h"
#include "xml/XmlText.h"

namespace tvpolicy::parse {

namespace {

using xercesc::DOMNode;

// Keeps the first fatal error; warnings and recoverable errors pass.
class FirstFatalError : public xercesc::ErrorHandler {
public:
    void warning(const xercesc::SAXParseException&) override {}
    void error(const xercesc::SAXParseException&) override {}
    void fatalError(const xercesc::SAXParseException& problem) override
    {
        if (message.empty()) {
            message = "line " + std::to_string(problem.getLineNumber()) + ": " + xml::utf8(problem.getMessage());
        }
    }
    void resetErrors() override {}

    std::string message;
};

struct TypeName {
    const char16_t* name;
    PlistValue::Type type;
};

constexpr TypeName scalarTypes[] = {
    {u"string", PlistValue::Type::String}, {u"integer", PlistValue::Type::Integer}, {u"real", PlistValue::Type::Real},
    {u"date", PlistValue::Type::Date},     {u"data", PlistValue::Type::Data},
};

// The nesting of the document is bounded by the reader, so the recursion is too.
PlistValue valueOf(const DOMNode* element)
{
    const XMLCh* name = xml::localNameOf(element);
    PlistValue value;
    if (xml::sameName(name, u"array")) {
        value.type = PlistValue::Type::Array;
        xml::forEachChildElement(
            element, [&value](const XMLCh*, const DOMNode* child) { value.items.push_back(valueOf(child)); });
    } else if (xml::sameName(name, u"dict")) {
        value.type = PlistValue::Type::Dictionary;
        std::optional<std::string> key;
        xml::forEachChildElement(element, [&](const XMLCh* childName, const DOMNode* child) {
            if (xml::sameName(childName, u"key")) {
                key = xml::utf8(xml::textContent(child).c_str());
            } else if (key) {
                value.entries.emplace_back(std::move(*key), valueOf(child));
                key.reset();
            }
        });
    } else if (xml::sameName(name, u"true") || xml::sameName(name, u"false")) {
        value.type = PlistValue::Type::Boolean;
        value.text = xml::sameName(name, u"true") ? "true" : "false";
    } else {
        for (const TypeName& scalar : scalarTypes) {
            if (xml::sameName(name, scalar.name)) {
                value.type = scalar.type;
                value.text = xml::utf8(xml::textContent(element).c_str());
            }
        }
    }
    return value;
}

}  // namespace

const PlistValue* PlistValue::find(const std::string& key) const
{
    for (const auto& entry : entries) {
        if (entry.first == key) {
            return &entry.second;
        }
    }
    return nullptr;
}

std::string PlistValue::stringAt(const std::string& key) const
{
    const PlistValue* value = find(key);
    return value != nullptr && value->type == Type::String ? value->text : std::string();
}

Result<PlistValue> parsePropertyList(const std::string& text)
{
    FirstFatalError errors;
    xml::DocumentPtr document = xml::parseDocument(text, {"property list", false}, errors);
    if (!errors.message.empty() || !document || document->getDocumentElement() == nullptr) {
        return Failure{errors.message.empty() ? "not an XML document" : errors.message};
    }
    const DOMNode* root = document->getDocumentElement();
    if (!xml::sameName(xml::localNameOf(root), u"plist")) {
        return Failure{"the root element is not plist"};
    }
    const DOMNode* first = nullptr;
    xml::forEachChildElement(root, [&first](const XMLCh*, const DOMNode* child) {
        if (first == nullptr) {
            first = child;
        }
    });
    if (first == nullptr) {
        return Failure{"the property list is empty"};
    }
    return valueOf(first);
}

}  // namespace tvpolicy::parse
