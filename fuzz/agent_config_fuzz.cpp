// The agent configuration document.
#include <string>

#include <tvpolicy/agent/AgentConfigXML.h>

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
    auto config = com::torvane::AgentConfigXML::parse(std::string(reinterpret_cast<const char*>(data), size));
    for (const auto& field : config->fieldList) {
        config->getField(field->getName());
    }
    return 0;
}
