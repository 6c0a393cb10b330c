// The shared utilities: split (both containers), splitURL, urlencode and normalizeMAC.
#include <list>
#include <map>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include <tvpolicy/host/Utilities.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    std::string delimiters = input.ConsumeRandomLengthString(8);
    std::string text = input.ConsumeRemainingBytesAsString();

    std::list<std::string> asList;
    split(text, delimiters, asList);
    std::vector<std::string> asVector;
    split(text, delimiters, asVector);
    if (asList.size() != asVector.size()) {
        __builtin_trap();  // the two forms of split must agree
    }
    std::string url = text;
    std::map<std::string, std::string> parts;
    splitURL(url, parts);
    urlencode(text);
    std::string mac = text;
    normalizeMAC(mac);
    return 0;
}
