#include "xml/XmlText.h"

#include <xercesc/util/XMLString.hpp>

#include <tvpolicy/base/Utf8.h>

namespace tvpolicy::xml {

std::string utf8(const XMLCh* text, XMLSize_t length)
{
    static_assert(sizeof(XMLCh) == sizeof(char16_t), "Xerces-C's code units are UTF-16");
    return utf8::fromUtf16(reinterpret_cast<const char16_t*>(text), length);
}

std::string utf8(const XMLCh* text)
{
    return text == nullptr ? std::string() : utf8(text, xercesc::XMLString::stringLen(text));
}

std::string elementName(const XMLCh* localname, const XMLCh* qname, bool& fromQName)
{
    const XMLCh* name = elementNameText(localname, qname);
    fromQName = name != localname;
    return utf8(name);
}

bool equalsAscii(const XMLCh* text, const char* ascii)
{
    if (text == nullptr) {
        return *ascii == 0;
    }
    for (; *ascii != 0; ++text, ++ascii) {
        if (*text != static_cast<XMLCh>(static_cast<unsigned char>(*ascii))) {
            return false;
        }
    }
    return *text == 0;
}

Utf16::Utf16(const std::string& text)
    : text_(std::make_unique<xercesc::TranscodeFromStr>(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                                        "UTF-8"))
{
}

}  // namespace tvpolicy::xml
