#include "policy/MarkupTrim.h"

#include <cstdint>

#include <xercesc/util/XMLUni.hpp>

namespace tvpolicy::policy {

using xercesc::XMLUni;

namespace {

struct Layout {
    std::size_t width = 1;  // bytes per code unit
    bool bigEndian = false;
    std::size_t mark = 0;             // bytes of the byte-order mark
    const XMLCh* unmarked = nullptr;  // the encoding's name, for a wide text without a mark
};

Layout layoutOf(const std::string& xml)
{
    auto byte = [&](std::size_t i) { return i < xml.size() ? static_cast<unsigned char>(xml[i]) : 0x100u; };
    auto startsWith = [&](std::initializer_list<unsigned> bytes) {
        std::size_t i = 0;
        for (unsigned b : bytes) {
            if (byte(i++) != b) {
                return false;
            }
        }
        return true;
    };
    if (startsWith({0x00, 0x00, 0xFE, 0xFF})) {
        return {4, true, 4};
    }
    if (startsWith({0xFF, 0xFE, 0x00, 0x00})) {
        return {4, false, 4};
    }
    if (startsWith({0xFE, 0xFF})) {
        return {2, true, 2};
    }
    if (startsWith({0xFF, 0xFE})) {
        return {2, false, 2};
    }
    if (xml.size() >= 4 && byte(0) == 0 && byte(1) == 0 && byte(2) == 0 && byte(3) != 0) {
        return {4, true, 0, XMLUni::fgUCS4BEncodingString};
    }
    if (xml.size() >= 4 && byte(0) != 0 && byte(1) == 0 && byte(2) == 0 && byte(3) == 0) {
        return {4, false, 0, XMLUni::fgUCS4LEncodingString};
    }
    if (xml.size() >= 2 && byte(0) == 0 && byte(1) != 0) {
        return {2, true, 0, XMLUni::fgUTF16BEncodingString};
    }
    if (xml.size() >= 2 && byte(0) != 0 && byte(1) == 0) {
        return {2, false, 0, XMLUni::fgUTF16LEncodingString};
    }
    return {};
}

std::uint32_t unitAt(const std::string& xml, std::size_t offset, const Layout& layout)
{
    std::uint32_t unit = 0;
    for (std::size_t i = 0; i < layout.width; ++i) {
        std::size_t at = layout.bigEndian ? offset + i : offset + layout.width - 1 - i;
        unit = (unit << 8) | static_cast<unsigned char>(xml[at]);
    }
    return unit;
}

// The offset of the first (or last) code unit `unit` after the mark; npos when there is none.
std::size_t findUnit(const std::string& xml, const Layout& layout, char unit, bool lastOne)
{
    if (layout.width == 1) {
        return lastOne ? xml.rfind(unit) : xml.find(unit);
    }
    std::size_t found = std::string::npos;
    for (std::size_t at = layout.mark; at + layout.width <= xml.size(); at += layout.width) {
        if (unitAt(xml, at, layout) == static_cast<std::uint32_t>(unit)) {
            found = at;
            if (!lastOne) {
                break;
            }
        }
    }
    return found;
}

}  // namespace

const XMLCh* trimToMarkup(std::string& xml)
{
    const Layout layout = layoutOf(xml);
    std::size_t last = findUnit(xml, layout, '>', true);
    if (last != std::string::npos) {
        xml.erase(last + layout.width);
    }
    std::size_t first = findUnit(xml, layout, '<', false);
    if (first != std::string::npos) {
        xml.erase(layout.mark, first - layout.mark);
    }
    return layout.unmarked;
}

}  // namespace tvpolicy::policy
