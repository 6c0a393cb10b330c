#pragma once

#include <string>
#include <string_view>

// The texts the Linux kernel hands out under /proc and /sys, turned into plain values. The
// functions are pure and OS-neutral: they see the texts only.
namespace tvpolicy::parse {

/// The short command name from the text of /proc/<pid>/comm: everything before the one newline
/// the kernel appends (a name may itself hold blanks or odd bytes, which are kept).
std::string procCommName(const std::string& raw);

/// The executable's path from the target of the /proc/<pid>/exe link, without the
/// " (deleted)" the kernel adds once the file has been removed or replaced.
std::string procExeTarget(const std::string& raw);
/// The same, as a view into `raw`.
std::string_view procExeTargetView(std::string_view raw);

/// A sysfs attribute (such as /sys/class/dmi/id/sys_vendor) without its trailing newline and
/// the blanks that firmware pads its strings with.
std::string sysfsValue(const std::string& raw);

}  // namespace tvpolicy::parse
