#pragma once

#include <memory>
#include <string>

#include <tvpolicy/policy/Policy.h>

namespace testing_support {

/// A policy parsed from text, with what the parse wrote to standard output and to the log.
struct ParsedPolicy {
    std::unique_ptr<Policy> policy;
    std::string out;
    std::string log;
};

ParsedPolicy parsePolicy(const std::string& xml, bool showErrors = true);

}  // namespace testing_support
