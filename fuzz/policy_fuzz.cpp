// The policy document: parsed as the server's text, then run against a described host whose
// file system is an empty folder, so that nothing the input names is executed or searched here.
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskSource.h>

#include "FuzzSupport.h"
#include "ReaderBuffers.h"

namespace {

// Every check a section holds was read from an element: its source names that element, and the
// attributes it calls unknown are among those the element carried.
void checkSources(Section& section)
{
    for (Task* task : section.getTasks()) {
        const tvpolicy::TaskSource* source = section.getTaskSource(task);
        if (source == nullptr || source->element.empty()) {
            std::abort();
        }
        for (const std::string& unknown : source->unknownAttributes) {
            auto carried = [&](const auto& attribute) { return attribute.first == unknown; };
            if (std::none_of(source->attributes.begin(), source->attributes.end(), carried)) {
                std::abort();
            }
        }
    }
    (void)section.getHelp();
    if (auto* option = dynamic_cast<Option*>(&section)) {
        for (auto& entry : option->getSections()) {
            checkSources(*entry.second);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::initialiseIsolated();
    fuzz::reuseReaderBuffers();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<Policy> policy(Policy::parseFromString(text, true));
    for (auto& entry : policy->getSections()) {
        checkSources(*entry.second);
    }
    // A policy cut short by a fatal error keeps what it read, and an agent may still run it.
    tvpolicy::ScopedHost described(fuzz::emptyHost());
    policy->run();
    return 0;
}
