#pragma once

#include <string>

namespace tvpolicy::bench {

/// Sections of the large policy that the benchmarks parse, run and report.
constexpr int largePolicySections = 10000;

/// Section `index` of the large policy (a primary for every fourth index).
std::string largePolicySection(int index);

/// A policy of 10,000 sections, about 5 MB: each a help text, an instructions link and a tree of
/// and/or/not over constant and Validate checks, grouped in fours (a primary and three
/// secondaries).
const std::string& largePolicyText();

}  // namespace tvpolicy::bench
