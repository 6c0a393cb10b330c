#pragma once

#include <string>

namespace tvpolicy::darwin {

/// The output of "system_profiler -xml SPApplicationsDataType" (an XML property list), read in
/// pieces of 1024 bytes; empty when the command could not be started. Parsing is the
/// application inventory's, which is OS-neutral.
std::string applicationsPropertyList();

}  // namespace tvpolicy::darwin
