#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tvpolicy::parse {

/// One line of /proc/<pid>/mountinfo.
struct MountEntry {
    std::string device;      ///< "major:minor" of the mounted device
    std::string mountPoint;  ///< octal escapes ("\040") undone
    std::string fsType;
    std::string source;  ///< octal escapes undone
};

/// The lines of a mountinfo text that have all the fields up to the source, in order; lines
/// that do not are left out.
std::vector<MountEntry> parseMountInfo(const std::string& text);

/// What is mounted at `mountPoint`: the last entry for it (a later mount hides an earlier).
std::optional<MountEntry> mountAt(const std::vector<MountEntry>& mounts, const std::string& mountPoint);

/// A "major:minor" device number: two runs of decimal digits around one colon.
bool isDeviceNumber(const std::string& text);

}  // namespace tvpolicy::parse
