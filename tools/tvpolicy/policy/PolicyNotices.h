#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Policy;

namespace tvpolicy::cli {

/// Something a person must know before trusting a run's verdict.
struct Notice {
    /// "unknown-element", "unknown-attribute", "included-not-evaluated", "no-sections" (about the
    /// document: --strict refuses the run) or "partial-process-table" (about this computer).
    std::string kind;
    bool aboutDocument = true;
    std::uint64_t line = 0;  // 0 when it has no place in the document
    std::string section;
    std::string message;
};

/// What the policy holds that the run will not evaluate: elements naming no check kind,
/// attributes a check does not read, included sections (read, never evaluated), and a policy
/// without any section. In document order within each section, sections in key order.
std::vector<Notice> documentNotices(Policy& policy);

/// A notice when the policy checks processes and this computer withholds some of its process
/// table (the executables of other users' processes, to an unprivileged user).
std::vector<Notice> hostNotices(Policy& policy);

/// "line 3: " and the message, for standard error.
std::string describe(const Notice& notice);

}  // namespace tvpolicy::cli
