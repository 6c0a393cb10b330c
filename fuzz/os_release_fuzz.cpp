// The os-release reader.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/parse/OsRelease.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto release = tvpolicy::parse::OsRelease::parse(std::string(reinterpret_cast<const char*>(data), size));
    release.value("ID");
    release.value("VERSION_ID");
    return 0;
}
