// The lists of installed software: Debian's status database, an rpm query's lines and the
// system profiler's XML, each read from the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "host/parse/InstalledApplications.h"

#include "FuzzSupport.h"
#include "ReaderBuffers.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::silenceLogs();
    fuzz::reuseReaderBuffers();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    for (const auto& package : tvpolicy::parse::packagesFromDpkgStatus(text)) {
        if (package.name.empty()) {
            std::abort();  // a stanza without "Package:" names nothing
        }
    }
    tvpolicy::parse::packagesFromRpmQuery(text);
    std::ostringstream out;
    std::ostringstream err;
    for (const auto& application : tvpolicy::parse::applicationsFromProfiler(text, out, err)) {
        (void)application;
    }
    return 0;
}
