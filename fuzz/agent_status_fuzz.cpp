// The server's status reply and the login fields it may carry: the same text goes to both readers.
#include <string>

#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/LoginField.h>

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
    com::torvane::AgentStatusXML::parse(text);
    com::torvane::LoginField::parse(text);
    return 0;
}
