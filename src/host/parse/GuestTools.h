#pragma once

#include <string>
#include <utility>
#include <vector>

// The outputs of the virtual-machine tools (VBoxManage, vmrun) and the VMX files of VMware
// guests, turned into plain values. Pure and OS-neutral.
namespace tvpolicy::parse {

/// The machine identifiers ("{...}") of `VBoxManage list runningvms`, in output order.
std::vector<std::string> vboxMachineIds(const std::string& listOutput);

/// The text between the first and the second double quote of a `showvminfo --machinereadable`
/// token (macaddress1="080027ABCDEF" gives 080027ABCDEF); empty when there are fewer quotes.
std::string vboxQuotedValue(const std::string& token);

/// A colon before every character at an even, non-zero position: "080027ABCDEF" gives
/// "08:00:27:AB:CD:EF".
std::string vboxFormattedMAC(const std::string& raw);

/// The lines of a `vmrun list` output (split on CR, LF and tab only: paths hold blanks).
std::vector<std::string> vmrunPaths(const std::string& listOutput);

/// One "key = "value"" line of a VMX file.
using VmxEntry = std::pair<std::string, std::string>;

/// The entries of a VMX file in file order; lines beginning with "#" are left out. The key is
/// the text before the first " =" (else before the first "="), the value the text between the
/// first double quote after the "=" and the next one.
std::vector<VmxEntry> vmxEntries(const std::string& text);

/// The adapter addresses of a VMX file's entries (a later entry of a key wins): for each
/// "ethernetN" prefix in sorted order, the generated address of a "generated" adapter or the
/// upper-cased static address of a "static" one. Other types, and missing addresses, give
/// nothing.
std::vector<std::string> vmxAddresses(const std::vector<VmxEntry>& entries);

}  // namespace tvpolicy::parse
