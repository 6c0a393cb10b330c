// Mount tables: every entry comes from a line of its own with a valid device number, and the
// mount found at a point is one of the entries.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/parse/MountInfo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    auto mounts = tvpolicy::parse::parseMountInfo(text);
    std::size_t lines = 1;
    for (char c : text) {
        lines += c == '\n';
    }
    if (mounts.size() > lines) {
        std::abort();
    }
    for (const auto& mount : mounts) {
        if (!tvpolicy::parse::isDeviceNumber(mount.device)) {
            std::abort();
        }
    }
    if (!mounts.empty()) {
        auto found = tvpolicy::parse::mountAt(mounts, mounts.front().mountPoint);
        if (!found || found->mountPoint != mounts.front().mountPoint) {
            std::abort();
        }
    }
    return 0;
}
