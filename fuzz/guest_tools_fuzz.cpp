// What the virtual-machine tools print and what VMX files hold: `VBoxManage list runningvms`,
// `showvminfo --machinereadable` tokens, `vmrun list` and a VMX file, each read from the
// same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/parse/GuestTools.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tvpolicy::parse;
    std::string text(reinterpret_cast<const char*>(data), size);
    vboxMachineIds(text);
    std::string value = vboxQuotedValue(text);
    std::string mac = vboxFormattedMAC(value);
    if (mac.size() != value.size() + (value.empty() ? 0 : (value.size() - 1) / 2)) {
        std::abort();  // one colon before every second character after the first
    }
    vmrunPaths(text);
    vmxAddresses(vmxEntries(text));
    return 0;
}
