#pragma once

#include <optional>
#include <string>

namespace tvpolicy::parse {

/// A Debian package version, "[epoch:]upstream[-revision]".
struct DpkgVersion {
    unsigned long long epoch = 0;
    std::string upstream;
    std::string revision;
};

/// Splits a version as dpkg does: the epoch before the first colon, the revision after the
/// last hyphen. Absent when dpkg refuses it: empty, blanks inside, an epoch that is not a
/// number, an empty upstream part, or an upstream part that does not start with a digit.
std::optional<DpkgVersion> parseDpkgVersion(const std::string& text);

/// dpkg's ordering of two parsed versions: negative, zero or positive as `a` sorts before, with
/// or after `b`. Epochs compare as numbers; upstream and revision part by part, runs of digits
/// as numbers, everything else by character with letters before other signs and "~" before
/// everything, even the end.
int compareDpkgVersions(const DpkgVersion& a, const DpkgVersion& b);

/// rpm's ordering of two "[epoch:]version[-release]" texts (rpmvercmp on each part, a missing
/// epoch being 0 and a release missing on either side not compared).
int compareRpmVersions(const std::string& a, const std::string& b);

}  // namespace tvpolicy::parse
