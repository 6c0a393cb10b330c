// The policy document: parsed as the server's text, then run against a described host whose
// file system is an empty folder, so that nothing the input names is executed or searched here.
#include <memory>
#include <string>

#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include "FuzzSupport.h"

namespace {

bool performable(Policy& policy)
{
    for (auto& [key, item] : policy.getSections()) {
        if (auto* option = dynamic_cast<Option*>(item)) {
            for (auto& [sectionKey, section] : option->getSections()) {
                if (!fuzz::performableOnDescribedHost(section->getTasks())) {
                    return false;
                }
            }
        } else if (!fuzz::performableOnDescribedHost(item->getTasks())) {
            return false;
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::initialiseIsolated();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<Policy> policy(Policy::parseFromString(text, true));
    // A policy cut short by a fatal error keeps what it read, and an agent may still run it.
    if (!performable(*policy)) {
        return 0;
    }
    tvpolicy::ScopedHost described(fuzz::emptyHost());
    policy->run();
    return 0;
}
