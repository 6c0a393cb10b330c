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
    // An unpaired surrogate becomes U+FFFD; at most three bytes per code unit.
    const auto* units = reinterpret_cast<const UChar*>(text);
    out.resize(3 * length);
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(out.data(), static_cast<std::int32_t>(out.size()), &size, units,
                       static_cast<std::int32_t>(length), 0xFFFD, nullptr, &status);
    out.resize(U_SUCCESS(status) ? static_cast<std::size_t>(size) : 0);
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
