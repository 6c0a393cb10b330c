#pragma once

#include <vector>

#include "policy/PolicyNotices.h"

class Policy;

namespace tvpolicy::cli {

/// What a policy's author should know, found without performing any check: what `run` warns
/// about (elements naming no kind, attributes no kind reads, includes, no sections), version
/// texts and operators a comparison would read otherwise than they look, sections that can
/// never run, ONLY options with groups, more than 999 sections, includes that are not http(s).
/// Each is a Notice about the document.
std::vector<Notice> lintFindings(Policy& policy);

/// What the policy will do that an administrator should see, without being a fault: the shell
/// commands of VersionFromScript checks.
std::vector<Notice> lintNotes(Policy& policy);

}  // namespace tvpolicy::cli
