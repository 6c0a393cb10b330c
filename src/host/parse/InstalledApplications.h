#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tvpolicy::parse {

/// An installed application or package as its source names it.
struct InstalledApplication {
    std::string name;
    std::string version;
    /// The package database's status of the package ("install ok installed"); empty where the
    /// source has none.
    std::string status = {};
};

/// The applications of the system profiler's XML output (a root array of data-type
/// dictionaries; the "_items" of those whose "_dataType" is "SPApplicationsDataType"), in
/// document order. Items without a "_name" string are left out; a missing version is empty.
///
/// Writes the profiler reader's progress lines: "It's an array!" to `err`, "array count = N"
/// (twice) and "items count = N" per data type to `out`. A document that does not parse gives
/// its error description on `err` and nothing else; a root that is not an array gives nothing.
std::vector<InstalledApplication> applicationsFromProfiler(const std::string& xml, std::ostream& out,
                                                           std::ostream& err);

/// The packages of Debian's status database that are installed (in any state but
/// "not-installed" and "config-files", whose files are gone), in the file's order. The name is
/// the one dpkg-query shows: qualified with ":" and the architecture for a "Multi-Arch: same"
/// package or one of a foreign architecture (the native one being dpkg's own).
std::vector<InstalledApplication> packagesFromDpkgStatus(const std::string& status);

/// The packages of an rpm query that prints one "name<TAB>version" line per package.
std::vector<InstalledApplication> packagesFromRpmQuery(const std::string& output);

}  // namespace tvpolicy::parse
