#pragma once

#include <cstdint>
#include <string>

#include <tvpolicy/export.h>

/// The outcome of one Task::perform. Allocated by perform and owned by its caller.
class TVPOLICY_API TaskResponse {
public:
    bool passed = false;
    /// Short outcome text, shown in a section's log after "Info: ".
    std::string message;
    /// A second text; "Task performed properly." when a check ran to its end.
    std::string detail;
    /// Kept for the server; the engine never reads it.
    std::int64_t code = -1;
    /// When set, the owning section's result is discarded and reported as skipped.
    bool skip = false;
    /// The response of the term that made an andTask fail (an identity only, never dereferenced).
    TaskResponse* failedResponse = nullptr;

    TaskResponse() = default;
    explicit TaskResponse(std::int64_t initialCode) : code(initialCode) {}
};
