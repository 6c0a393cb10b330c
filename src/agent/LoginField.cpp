#include <tvpolicy/agent/LoginField.h>

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>

#include "agent/AgentDocument.h"
#include "xml/DomText.h"

namespace com::torvane {

using namespace xercesc;
using tvpolicy::xml::sameName;

LoginField::LoginField(std::string fieldName, std::string fieldLabel, Type fieldType)
    : name(std::move(fieldName)),
      label(std::move(fieldLabel)),
      type(fieldType)
{
}

LoginField::Type LoginField::setType(std::string word)
{
    if (word == "PASSWORD") {
        type = PASSWORD;
    } else if (word == "SELECT") {
        type = SELECT;
    } else {
        type = TEXT;
    }
    return type;
}

namespace {

LoginFieldOption readOption(const DOMNode* element, TV_XMLTranscoder& transcoder)
{
    static const XMLCh nameTag[] = u"name";
    static const XMLCh valueTag[] = u"value";
    LoginFieldOption option;
    tvpolicy::xml::forEachChildElement(element, [&](const XMLCh* tag, const DOMNode* child) {
        if (sameName(tag, nameTag)) {
            option.name = detail::utf8TextOf(child, transcoder);
        } else if (sameName(tag, valueTag)) {
            option.value = detail::utf8TextOf(child, transcoder);
        }
    });
    return option;
}

}  // namespace

std::shared_ptr<LoginField> LoginField::parseNode(DOMNode* element)
{
    static const XMLCh nameAttribute[] = u"name";
    static const XMLCh labelTag[] = u"label";
    static const XMLCh typeTag[] = u"type";
    static const XMLCh optionTag[] = u"option";

    auto field = std::make_shared<LoginField>();
    if (element == nullptr) {
        return field;
    }
    TV_XMLTranscoder transcoder("UTF-8");
    if (DOMNamedNodeMap* attributes = element->getAttributes()) {
        for (XMLSize_t i = 0, count = attributes->getLength(); i < count; ++i) {
            DOMNode* attribute = attributes->item(i);
            if (sameName(attribute->getNodeName(), nameAttribute)) {
                transcoder.transcodeToStdString(attribute->getNodeValue(), field->name);
            }
        }
    }
    tvpolicy::xml::forEachChildElement(element, [&](const XMLCh* tag, const DOMNode* child) {
        if (sameName(tag, labelTag)) {
            field->label = detail::utf8TextOf(child, transcoder);
        } else if (sameName(tag, typeTag)) {
            field->setType(detail::utf8TextOf(child, transcoder));
        } else if (sameName(tag, optionTag)) {
            field->options.push_back(readOption(child, transcoder));
        }
    });
    return field;
}

std::shared_ptr<LoginField> LoginField::parse(std::string xmlText)
{
    return detail::parseDocumentElement<LoginField>(xmlText, "field");
}

}  // namespace com::torvane
