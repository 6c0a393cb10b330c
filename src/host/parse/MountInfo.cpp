#include "host/parse/MountInfo.h"

#include <sstream>

namespace tvpolicy::parse {

namespace {

bool isOctal(char c) { return c >= '0' && c <= '7'; }

std::string unescaped(const std::string& field)
{
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size() && isOctal(field[i + 1]) && isOctal(field[i + 2]) &&
            isOctal(field[i + 3])) {
            text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0'));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

}  // namespace

bool isDeviceNumber(const std::string& text)
{
    std::size_t colon = text.find(':');
    if (colon == 0 || colon == std::string::npos || colon + 1 == text.size() || text.size() > 24) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i != colon && (text[i] < '0' || text[i] > '9')) {
            return false;
        }
    }
    return true;
}

std::vector<MountEntry> parseMountInfo(const std::string& text)
{
    std::vector<MountEntry> mounts;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        // id parent major:minor root mount-point options [optional fields...] - type source options
        std::istringstream fields(line);
        std::vector<std::string> words;
        std::string word;
        while (fields >> word) {
            words.push_back(word);
        }
        std::size_t separator = 6;
        while (separator < words.size() && words[separator] != "-") {
            ++separator;
        }
        if (separator + 2 >= words.size() || !isDeviceNumber(words[2])) {
            continue;
        }
        mounts.push_back({words[2], unescaped(words[4]), words[separator + 1], unescaped(words[separator + 2])});
    }
    return mounts;
}

std::optional<MountEntry> mountAt(const std::vector<MountEntry>& mounts, const std::string& mountPoint)
{
    for (auto entry = mounts.rbegin(); entry != mounts.rend(); ++entry) {
        if (entry->mountPoint == mountPoint) {
            return *entry;
        }
    }
    return std::nullopt;
}

}  // namespace tvpolicy::parse
