#include "host/parse/PackageVersion.h"

#include <algorithm>
#include <cstddef>

namespace tvpolicy::parse {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isAlpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isAlnum(char c) { return isDigit(c) || isAlpha(c); }

// The weight of a character outside a run of digits; 0 stands for the end of the text.
int weight(char c)
{
    if (c == '\0' || isDigit(c)) {
        return 0;
    }
    if (isAlpha(c)) {
        return static_cast<unsigned char>(c);
    }
    if (c == '~') {
        return -1;
    }
    return static_cast<unsigned char>(c) + 256;
}

int comparePart(const std::string& left, const std::string& right)
{
    const char* a = left.c_str();
    const char* b = right.c_str();
    while (*a != '\0' || *b != '\0') {
        while ((*a != '\0' && !isDigit(*a)) || (*b != '\0' && !isDigit(*b))) {
            int difference = weight(*a) - weight(*b);
            if (difference != 0) {
                return difference;
            }
            ++a;
            ++b;
        }
        while (*a == '0') {
            ++a;
        }
        while (*b == '0') {
            ++b;
        }
        int firstDifference = 0;
        while (isDigit(*a) && isDigit(*b)) {
            if (firstDifference == 0) {
                firstDifference = *a - *b;
            }
            ++a;
            ++b;
        }
        if (isDigit(*a)) {
            return 1;
        }
        if (isDigit(*b)) {
            return -1;
        }
        if (firstDifference != 0) {
            return firstDifference;
        }
    }
    return 0;
}

int sign(int value) { return (value > 0) - (value < 0); }

// rpmvercmp: alternating runs of digits and letters, separators skipped; "~" sorts before
// everything and "^" after the end but before anything else.
int rpmCompare(const std::string& left, const std::string& right)
{
    if (left == right) {
        return 0;
    }
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < left.size() || j < right.size()) {
        while (i < left.size() && !isAlnum(left[i]) && left[i] != '~' && left[i] != '^') {
            ++i;
        }
        while (j < right.size() && !isAlnum(right[j]) && right[j] != '~' && right[j] != '^') {
            ++j;
        }
        bool tildeA = i < left.size() && left[i] == '~';
        bool tildeB = j < right.size() && right[j] == '~';
        if (tildeA || tildeB) {
            if (!tildeA) {
                return 1;
            }
            if (!tildeB) {
                return -1;
            }
            ++i;
            ++j;
            continue;
        }
        bool caretA = i < left.size() && left[i] == '^';
        bool caretB = j < right.size() && right[j] == '^';
        if (caretA || caretB) {
            if (i >= left.size()) {
                return -1;
            }
            if (j >= right.size()) {
                return 1;
            }
            if (!caretA) {
                return 1;
            }
            if (!caretB) {
                return -1;
            }
            ++i;
            ++j;
            continue;
        }
        if (i >= left.size() || j >= right.size()) {
            break;
        }
        bool numeric = isDigit(left[i]);
        auto runEnd = [numeric](const std::string& text, std::size_t from) {
            while (from < text.size() && (numeric ? isDigit(text[from]) : isAlpha(text[from]))) {
                ++from;
            }
            return from;
        };
        std::size_t endA = runEnd(left, i);
        std::size_t endB = runEnd(right, j);
        if (endB == j) {
            // A number against letters: the number is newer.
            return numeric ? 1 : -1;
        }
        std::string runA = left.substr(i, endA - i);
        std::string runB = right.substr(j, endB - j);
        if (numeric) {
            runA.erase(0, std::min(runA.find_first_not_of('0'), runA.size()));
            runB.erase(0, std::min(runB.find_first_not_of('0'), runB.size()));
            if (runA.size() != runB.size()) {
                return runA.size() > runB.size() ? 1 : -1;
            }
        }
        int difference = runA.compare(runB);
        if (difference != 0) {
            return sign(difference);
        }
        i = endA;
        j = endB;
    }
    if (i >= left.size() && j >= right.size()) {
        return 0;
    }
    return i >= left.size() ? -1 : 1;
}

struct RpmVersion {
    std::string epoch;
    std::string version;
    std::optional<std::string> release;
};

RpmVersion splitRpm(const std::string& text)
{
    RpmVersion parts;
    std::string rest = text;
    std::size_t colon = rest.find(':');
    if (colon != std::string::npos &&
        std::all_of(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(colon), isDigit)) {
        parts.epoch = rest.substr(0, colon);
        rest.erase(0, colon + 1);
    }
    std::size_t hyphen = rest.rfind('-');
    if (hyphen != std::string::npos) {
        parts.release = rest.substr(hyphen + 1);
        rest.erase(hyphen);
    }
    parts.version = rest;
    return parts;
}

}  // namespace

std::optional<DpkgVersion> parseDpkgVersion(const std::string& text)
{
    if (text.empty() || text.find_first_of(" \t\r\n") != std::string::npos) {
        return std::nullopt;
    }
    DpkgVersion version;
    std::string rest = text;
    std::size_t colon = rest.find(':');
    if (colon != std::string::npos) {
        std::string epoch = rest.substr(0, colon);
        if (epoch.empty() || epoch.size() > 9 || !std::all_of(epoch.begin(), epoch.end(), isDigit)) {
            return std::nullopt;
        }
        version.epoch = std::stoull(epoch);
        rest.erase(0, colon + 1);
    }
    std::size_t hyphen = rest.rfind('-');
    if (hyphen != std::string::npos) {
        version.revision = rest.substr(hyphen + 1);
        rest.erase(hyphen);
    }
    if (rest.empty() || !isDigit(rest[0])) {
        return std::nullopt;
    }
    version.upstream = rest;
    return version;
}

int compareDpkgVersions(const DpkgVersion& a, const DpkgVersion& b)
{
    if (a.epoch != b.epoch) {
        return a.epoch > b.epoch ? 1 : -1;
    }
    int upstream = comparePart(a.upstream, b.upstream);
    if (upstream != 0) {
        return sign(upstream);
    }
    return sign(comparePart(a.revision, b.revision));
}

int compareRpmVersions(const std::string& a, const std::string& b)
{
    RpmVersion left = splitRpm(a);
    RpmVersion right = splitRpm(b);
    int epoch = rpmCompare(left.epoch.empty() ? "0" : left.epoch, right.epoch.empty() ? "0" : right.epoch);
    if (epoch != 0) {
        return epoch;
    }
    int version = rpmCompare(left.version, right.version);
    if (version != 0 || !left.release || !right.release) {
        return version;
    }
    return rpmCompare(*left.release, *right.release);
}

}  // namespace tvpolicy::parse
