#include "host/parse/GuestTools.h"

#include <map>
#include <set>

#include <tvpolicy/base/Utilities.h>

namespace tvpolicy::parse {

namespace {

std::vector<std::string> tokens(const std::string& text, const char* delimiters)
{
    std::string copy = text;
    std::string set = delimiters;
    std::vector<std::string> out;
    split(copy, set, out);
    return out;
}

}  // namespace

std::vector<std::string> vboxMachineIds(const std::string& listOutput)
{
    std::vector<std::string> ids;
    for (std::string& token : tokens(listOutput, " \t\n\r")) {
        if (token.front() == '{') {
            ids.push_back(std::move(token));
        }
    }
    return ids;
}

std::string vboxQuotedValue(const std::string& token)
{
    std::size_t first = token.find('"');
    if (first == std::string::npos) {
        return std::string();
    }
    std::size_t second = token.find('"', first + 1);
    if (second == std::string::npos) {
        return std::string();
    }
    return token.substr(first + 1, second - first - 1);
}

std::string vboxFormattedMAC(const std::string& raw)
{
    std::string formatted;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (i != 0 && i % 2 == 0) {
            formatted += ':';
        }
        formatted += raw[i];
    }
    return formatted;
}

std::vector<std::string> vmrunPaths(const std::string& listOutput) { return tokens(listOutput, "\r\n\t"); }

std::vector<VmxEntry> vmxEntries(const std::string& text)
{
    std::vector<VmxEntry> entries;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        std::string line = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
        start = end == std::string::npos ? text.size() : end + 1;
        if (!line.empty() && line.front() == '#') {
            continue;
        }
        std::size_t cut = line.find(" =");
        if (cut == std::string::npos) {
            cut = line.find('=');
        }
        std::string key = line.substr(0, cut);
        std::string value;
        std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            std::size_t open = line.find('"', equals);
            std::size_t close = open == std::string::npos ? std::string::npos : line.find('"', open + 1);
            if (close != std::string::npos) {
                value = line.substr(open + 1, close - open - 1);
            }
        }
        entries.emplace_back(std::move(key), std::move(value));
    }
    return entries;
}

std::vector<std::string> vmxAddresses(const std::vector<VmxEntry>& entries)
{
    std::map<std::string, std::string> values;
    std::set<std::string> prefixes;
    for (const auto& [key, value] : entries) {
        values[key] = value;
        if (key.compare(0, 8, "ethernet") == 0) {
            prefixes.insert(key.substr(0, key.find('.')));
        }
    }
    const auto valueOf = [&values](const std::string& key) {
        auto found = values.find(key);
        return found != values.end() ? found->second : std::string();
    };
    std::vector<std::string> addresses;
    for (const std::string& prefix : prefixes) {
        std::string type = valueOf(prefix + ".addressType");
        std::string address;
        if (type == "generated") {
            address = valueOf(prefix + ".generatedAddress");
        } else if (type == "static") {
            address = valueOf(prefix + ".address");
            normalizeMAC(address);
        }
        if (!address.empty()) {
            addresses.push_back(std::move(address));
        }
    }
    return addresses;
}

}  // namespace tvpolicy::parse
