// The version comparer: operator, delimiters, order and both versions from the input.
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <tvpolicy/checks/DelimVersion.h>

#include "FuzzSupport.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogs();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    std::string op = input.ConsumeRandomLengthString(8);
    std::string delim = input.ConsumeRandomLengthString(8);
    std::string order = input.ConsumeRandomLengthString(16);
    std::string requested = input.ConsumeRandomLengthString(64);
    bool normalize = input.ConsumeBool();
    std::string system = input.ConsumeRemainingBytesAsString();

    DelimVersion byName(op);
    byName.setNormalize(normalize);
    byName.versionAtLeast(requested, delim, system);
    byName.versionAtLeastReorder(requested, delim, system, order);
    DelimVersion byCode(static_cast<short>(op.empty() ? 0 : op[0]));
    byCode.versionAtLeast(requested, delim, system);
    DelimVersion::parseCmpOper(op);
    return 0;
}
