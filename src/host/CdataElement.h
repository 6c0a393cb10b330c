#pragma once

#include <string>

namespace tvpolicy {

/// Appends <name><![CDATA[value]]></name>, or <name></name> for an empty value. Values are
/// not escaped; one that holds "]]>" is split over two CDATA sections so that the fragment
/// stays well-formed and reads back as the same text.
inline void appendCdataElement(std::string& out, const char* name, const std::string& value)
{
    out += '<';
    out += name;
    out += '>';
    if (!value.empty()) {
        out += "<![CDATA[";
        std::size_t start = 0;
        for (std::size_t end; (end = value.find("]]>", start)) != std::string::npos; start = end + 2) {
            out.append(value, start, end + 2 - start);
            out += "]]><![CDATA[";
        }
        out.append(value, start, std::string::npos);
        out += "]]>";
    }
    out += "</";
    out += name;
    out += '>';
}

}  // namespace tvpolicy
