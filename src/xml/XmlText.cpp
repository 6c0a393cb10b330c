#include "xml/XmlText.h"

#include <unicode/ustring.h>
#include <xercesc/util/XMLString.hpp>

#include <cstdint>

namespace tvpolicy::xml {

std::string utf8(const XMLCh* text, XMLSize_t length)
{
    static_assert(sizeof(XMLCh) == sizeof(UChar), "Xerces-C and ICU share UTF-16 code units");
    std::string out;
    if (text == nullptr || length == 0 || length > static_cast<XMLSize_t>(INT32_MAX / 3)) {
        return out;
    }
    // Names and values are mostly ASCII: copied as they are, without the converter.
    XMLSize_t ascii = 0;
    while (ascii < length && text[ascii] < 0x80) {
        ++ascii;
    }
    if (ascii == length) {
        out.resize(length);
        for (XMLSize_t i = 0; i < length; ++i) {
            out[i] = static_cast<char>(text[i]);
        }
        return out;
    }
    // An unpaired surrogate becomes U+FFFD; at most three bytes per code unit.
    const auto* units = reinterpret_cast<const UChar*>(text);
    out.resize(3 * length);
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(out.data(), static_cast<std::int32_t>(out.size()), &size, units,
                       static_cast<std::int32_t>(length), 0xFFFD, nullptr, &status);
    out.resize(U_SUCCESS(status) ? static_cast<std::size_t>(size) : 0);
    out.shrink_to_fit();
    return out;
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
    : text_(std::make_unique<xercesc::TranscodeFromStr>(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "UTF-8"))
{
}

}  // namespace tvpolicy::xml
