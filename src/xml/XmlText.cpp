#include "xml/XmlText.h"

#include <xercesc/util/XMLString.hpp>

namespace tvpolicy::xml {

namespace {

void append(std::string& out, char32_t code)
{
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

bool isHigh(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLow(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::string utf8(const XMLCh* text, XMLSize_t length)
{
    std::string out;
    if (text == nullptr) {
        return out;
    }
    out.reserve(length);
    for (XMLSize_t i = 0; i < length; ++i) {
        char32_t unit = text[i];
        if (isHigh(unit) && i + 1 < length && isLow(text[i + 1])) {
            append(out, 0x10000 + ((unit - 0xD800) << 10) + (char32_t(text[i + 1]) - 0xDC00));
            ++i;
        } else if (isHigh(unit) || isLow(unit)) {
            append(out, 0xFFFD);
        } else {
            append(out, unit);
        }
    }
    return out;
}

std::string utf8(const XMLCh* text)
{
    return text == nullptr ? std::string() : utf8(text, xercesc::XMLString::stringLen(text));
}

std::string elementName(const XMLCh* localname, const XMLCh* qname, bool& fromQName)
{
    fromQName = localname == nullptr || *localname == 0;
    return utf8(fromQName ? qname : localname);
}

Utf16::Utf16(const std::string& text)
    : text_(std::make_unique<xercesc::TranscodeFromStr>(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "UTF-8"))
{
}

}  // namespace tvpolicy::xml
