#pragma once

#include <string>

#include <memory>

#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XercesDefs.hpp>

namespace tvpolicy::xml {

/// UTF-8 of a Xerces UTF-16 text; a lone surrogate becomes U+FFFD. Null gives "".
std::string utf8(const XMLCh* text);
/// The same for the first `length` code units of `text`.
std::string utf8(const XMLCh* text, XMLSize_t length);

/// The element name a handler goes by: its local name, or its qualified name when the local
/// name is empty. `fromQName` tells which was taken.
std::string elementName(const XMLCh* localname, const XMLCh* qname, bool& fromQName);

/// Whether a Xerces text is exactly the ASCII text `ascii`, compared without converting it.
bool equalsAscii(const XMLCh* text, const char* ascii);

/// The name elementName() would convert: the local name, or the qualified name when it is empty.
inline const XMLCh* elementNameText(const XMLCh* localname, const XMLCh* qname)
{
    return localname == nullptr || *localname == 0 ? qname : localname;
}

/// A UTF-8 text as a Xerces string, owned for as long as this lives.
class Utf16 {
public:
    explicit Utf16(const std::string& text);
    const XMLCh* get() const { return text_ != nullptr ? text_->str() : empty; }

private:
    static constexpr XMLCh empty[1] = {0};
    std::unique_ptr<xercesc::TranscodeFromStr> text_;
};

}  // namespace tvpolicy::xml
