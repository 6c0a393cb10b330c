// XML property lists, read with the library's hardened reader and then walked as the readers
// of the system's answers walk them.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "host/parse/PropertyList.h"

#include "FuzzSupport.h"
#include "ReaderBuffers.h"

namespace {

using tvpolicy::parse::PlistValue;

void walk(const PlistValue& root)
{
    std::vector<const PlistValue*> pending{&root};
    while (!pending.empty()) {
        const PlistValue* value = pending.back();
        pending.pop_back();
        for (const auto& [key, entry] : value->entries) {
            value->find(key);
            value->stringAt(key);
            pending.push_back(&entry);
        }
        for (const PlistValue& item : value->items) {
            pending.push_back(&item);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::silenceLogs();
    fuzz::reuseReaderBuffers();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto root = tvpolicy::parse::parsePropertyList(std::string(reinterpret_cast<const char*>(data), size));
    if (root) {
        walk(*root);
    }
    return 0;
}
