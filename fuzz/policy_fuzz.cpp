// The policy document: parsed as the server's text, then run against a described host whose
// file system is an empty folder, so that nothing the input names is executed or searched here.
#include <memory>
#include <string>

#include <tvpolicy/policy/Policy.h>

#include "FuzzSupport.h"

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
    tvpolicy::ScopedHost described(fuzz::emptyHost());
    policy->run();
    return 0;
}
