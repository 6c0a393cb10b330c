#include "host/parse/NetText.h"

#include <cctype>
#include <cstdio>

#include <tvpolicy/base/Utilities.h>

namespace tvpolicy::parse {

namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

}  // namespace

std::string sysfsMacAddress(const std::string& raw)
{
    std::string text = raw.substr(0, raw.find('\n'));
    unsigned char octets[6];
    std::size_t count = 0;
    std::size_t i = 0;
    while (count < 6) {
        if (i + 2 > text.size() || hexDigit(text[i]) < 0 || hexDigit(text[i + 1]) < 0) {
            return std::string();
        }
        octets[count++] = static_cast<unsigned char>(hexDigit(text[i]) * 16 + hexDigit(text[i + 1]));
        i += 2;
        if (count < 6) {
            if (i >= text.size() || text[i] != ':') {
                return std::string();
            }
            ++i;
        }
    }
    if (i != text.size() && text[i] != ':') {
        return std::string();
    }
    return macAddressText(octets, sizeof octets);
}

std::string macAddressText(const unsigned char* octets, std::size_t count)
{
    if (count < 6) {
        return std::string();
    }
    char formatted[18];
    std::snprintf(formatted, sizeof formatted, "%02X:%02X:%02X:%02X:%02X:%02X", octets[0], octets[1], octets[2],
                  octets[3], octets[4], octets[5]);
    return formatted;
}

ResolverDomains resolvConfDomains(const std::string& text)
{
    ResolverDomains domains;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        std::string line = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
        start = end == std::string::npos ? text.size() : end + 1;
        std::string blanks = " \t\r";
        std::vector<std::string> words;
        split(line, blanks, words);
        if (words.size() < 2 || (words[0] != "domain" && words[0] != "search")) {
            continue;
        }
        domains.search.clear();
        if (words[0] == "domain") {
            domains.domain = words[1];
            domains.search.push_back(words[1]);
            continue;
        }
        for (std::size_t w = 1; w < words.size() && words[w][0] != '#' && words[w][0] != ';'; ++w) {
            domains.search.push_back(words[w]);
        }
        domains.domain = domains.search.empty() ? std::string() : domains.search.front();
    }
    return domains;
}

}  // namespace tvpolicy::parse
