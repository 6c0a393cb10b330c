#include "host/parse/OsRelease.h"

#include <cctype>

namespace tvpolicy::parse {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v'; }

bool validName(const std::string& name)
{
    if (name.empty() || std::isdigit(static_cast<unsigned char>(name[0]))) {
        return false;
    }
    for (char c : name) {
        if (!(std::isalnum(static_cast<unsigned char>(c)) || c == '_')) {
            return false;
        }
    }
    return true;
}

bool escapableInDoubleQuotes(char c) { return c == '$' || c == '"' || c == '\\' || c == '`'; }

// The value of one assignment, from just behind its '=' to the end of the line.
std::string unquote(const std::string& line, std::size_t pos)
{
    std::string value;
    std::size_t keep = 0;  // length of `value` up to its last character that is not a bare blank
    while (pos < line.size()) {
        char c = line[pos++];
        if (c == '"') {
            while (pos < line.size() && line[pos] != '"') {
                if (line[pos] == '\\' && pos + 1 < line.size() && escapableInDoubleQuotes(line[pos + 1])) {
                    ++pos;
                }
                value += line[pos++];
            }
            ++pos;  // the closing quote (or the end of the line)
            keep = value.size();
        } else if (c == '\'') {
            std::size_t end = line.find('\'', pos);
            std::size_t stop = end == std::string::npos ? line.size() : end;
            value.append(line, pos, stop - pos);
            pos = stop + 1;
            keep = value.size();
        } else if (c == '\\' && pos < line.size()) {
            value += line[pos++];
            keep = value.size();
        } else {
            value += c;
            if (!isBlank(c)) {
                keep = value.size();
            }
        }
    }
    value.resize(keep);
    return value;
}

}  // namespace

OsRelease OsRelease::parse(const std::string& text)
{
    OsRelease release;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        std::string line = text.substr(start, end - start);
        start = end + 1;

        std::size_t first = 0;
        while (first < line.size() && isBlank(line[first])) {
            ++first;
        }
        if (first == line.size() || line[first] == '#') {
            continue;
        }
        std::size_t equals = line.find('=', first);
        if (equals == std::string::npos) {
            continue;
        }
        std::string name = line.substr(first, equals - first);
        if (!validName(name)) {
            continue;
        }
        release.values_[name] = unquote(line, equals + 1);
    }
    return release;
}

std::string OsRelease::value(const std::string& name) const
{
    auto found = values_.find(name);
    return found == values_.end() ? std::string() : found->second;
}

}  // namespace tvpolicy::parse
