// Package version texts, split on the first NUL into two versions: dpkg's and rpm's orderings
// must be antisymmetric, and a version must equal itself.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/parse/PackageVersion.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string raw(reinterpret_cast<const char*>(data), size);
    std::size_t split = raw.find('\0');
    std::string a = raw.substr(0, split);
    std::string b = split == std::string::npos ? std::string() : raw.substr(split + 1);
    using namespace tvpolicy::parse;
    auto left = parseDpkgVersion(a);
    auto right = parseDpkgVersion(b);
    if (left && right && compareDpkgVersions(*left, *right) != -compareDpkgVersions(*right, *left)) {
        std::abort();
    }
    if (left && compareDpkgVersions(*left, *left) != 0) {
        std::abort();
    }
    if (compareRpmVersions(a, b) != -compareRpmVersions(b, a) || compareRpmVersions(a, a) != 0) {
        std::abort();
    }
    return 0;
}
