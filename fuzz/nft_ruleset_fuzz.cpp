// The packet filter's ruleset as JSON: only chains that name a hook come back, and a document
// that is refused leaves no chain behind.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "host/parse/NftRuleset.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<tvpolicy::PostureProbe::FilterChain> chains;
    bool read = tvpolicy::parse::baseChainsFromNftJson(std::string(reinterpret_cast<const char*>(data), size), chains);
    if (!read && !chains.empty()) {
        std::abort();
    }
    for (const auto& chain : chains) {
        if (chain.hook.empty()) {
            std::abort();
        }
    }
    return 0;
}
