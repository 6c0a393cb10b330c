#pragma once

#include <cstddef>
#include <string>

namespace tvpolicy::darwin {

/// The output of "system_profiler -xml SPApplicationsDataType" (an XML property list), read in
/// pieces of 1024 bytes; empty when the command could not be started or printed more than
/// `limit` bytes (a runaway profiler is not read to the end). Parsing is the application
/// inventory's, which is OS-neutral.
std::string applicationsPropertyList(std::size_t limit);

}  // namespace tvpolicy::darwin
