#include <tvpolicy/base/Utilities.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <utility>

#include <tvpolicy/base/Timestamp.h>

#include "base/LogLine.h"

namespace {

template <typename Container>
void splitInto(const std::string& text, const std::string& delimiters, Container& tokens)
{
    std::string::size_type start = text.find_first_not_of(delimiters);
    while (start != std::string::npos) {
        std::string::size_type end = text.find_first_of(delimiters, start);
        tokens.push_back(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (end == std::string::npos) {
            break;
        }
        start = text.find_first_not_of(delimiters, end);
    }
}

struct PipeCloser {
    void operator()(std::FILE* stream) const { pclose(stream); }
};

}  // namespace

void debug(std::string message, std::string) { tvi::LogLine(std::clog) << "Debug: " << message; }

void split(std::string& text, std::string& delimiters, std::list<std::string>& tokens)
{
    splitInto(text, delimiters, tokens);
}

void split(std::string& text, std::string& delimiters, std::vector<std::string>& tokens)
{
    splitInto(text, delimiters, tokens);
}

void splitURL(std::string& url, std::map<std::string, std::string>& parts)
{
    static const std::string delimiters = "/:";
    std::list<std::string> tokens;
    splitInto(url, delimiters, tokens);

    auto token = tokens.begin();
    auto next = [&]() -> std::string {
        if (token == tokens.end()) {
            return std::string();
        }
        return *token++;
    };
    next();  // scheme
    parts["host"] = next();
    parts["port"] = next();
    std::string& page = parts["page"];
    page.clear();
    for (; token != tokens.end(); ++token) {
        page += '/';
        page += *token;
    }
}

std::string urlencode(std::string text)
{
    // Sixteen characters are encoded, one pass each and percent first, every pass starting at
    // position 1. No code contains a character of the table other than '%', which is already
    // done when later codes arrive, and position 0 is never touched; so a single pass from
    // position 1 gives the same text, in linear time.
    static const std::array<const char*, 256> codes = [] {
        std::array<const char*, 256> table{};
        const std::pair<char, const char*> entries[] = {
            {'%', "%25"}, {'\r', "%0D"}, {'\n', "%0A"}, {' ', "%20"}, {'"', "%22"}, {'#', "%23"},
            {'&', "%26"}, {',', "%2C"},  {'.', "%2E"},  {'/', "%2F"}, {':', "%3A"}, {';', "%3B"},
            {'<', "%3C"}, {'=', "%3D"},  {'>', "%3E"},  {'?', "%3F"},
        };
        for (const auto& [character, code] : entries) {
            table[static_cast<unsigned char>(character)] = code;
        }
        return table;
    }();
    if (text.size() < 2) {
        return text;
    }
    std::string encoded;
    encoded.reserve(text.size() + text.size() / 2);
    encoded += text[0];
    for (std::size_t i = 1; i < text.size(); ++i) {
        const char* code = codes[static_cast<unsigned char>(text[i])];
        if (code != nullptr) {
            encoded.append(code, 3);
        } else {
            encoded += text[i];
        }
    }
    return encoded;
}

std::string getOutputFromCommand(std::string command, unsigned long bufferSize)
{
    std::string output;
    if (command.empty()) {
        return output;
    }
    // fgets needs room for one character and its terminator, or it never reaches the end.
    if (bufferSize < 2) {
        bufferSize = 2;
    }
    std::unique_ptr<char[]> buffer(new char[bufferSize]);
    std::unique_ptr<std::FILE, PipeCloser> stream(popen(command.c_str(), "r"));
    if (!stream) {
        return output;
    }
    const int chunk = bufferSize > 0x7fffffffUL ? 0x7fffffff : static_cast<int>(bufferSize);
    while (!std::feof(stream.get())) {
        buffer[0] = '\0';
        if (std::fgets(buffer.get(), chunk, stream.get()) == nullptr) {
            buffer[0] = '\0';
            if (std::ferror(stream.get())) {
                break;
            }
        }
        output += buffer.get();
    }
    return output;
}

int runCommand(std::string command) { return std::system(command.c_str()); }

void normalizeMAC(std::string& mac)
{
    for (char& c : mac) {
        if (c >= 'a' && c <= 'f') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
}

std::string generateAgentId() { return std::string(); }
