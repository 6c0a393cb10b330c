#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli {

/// The results of a run (the JSON report) as JUnit XML, written through Xerces' DOM
/// serializer: one <testsuite> for the policy, one <testcase> per section (classname: the policy,
/// or the option holding the section), a <failure> with the failed checks' messages for a failed
/// or warning section, <skipped> for a skipped one. A failure when the serializer fails.
Result<std::string> junitReport(const nlohmann::ordered_json& report);

}  // namespace tvpolicy::cli
