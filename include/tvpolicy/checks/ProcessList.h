#pragma once

#include <cstdint>
#include <map>
#include <string>

#include <tvpolicy/export.h>

namespace com::torvane::api {

/// The processes of the computer, read from the process table afresh on every query (through
/// the current host probe) and never kept.
class TVPOLICY_API ProcessList {
public:
    ProcessList() = default;

    /// True when a process whose executable's base name, or whose short command name, equals
    /// `name` exactly (case-sensitive, whole name) is running. A process whose executable path
    /// cannot be read (another user's, without privilege) is passed over entirely, its short
    /// name included. A name with a directory part never matches.
    bool isProcessRunning(std::string name);

    /// Logs every process: "old: " and its short command name, then, when its executable path
    /// can be read, "new: " and the path's base name.
    void dump();

private:
    std::map<std::string, std::uint32_t> processes_;  // part of the class's shape; unused
};

}  // namespace com::torvane::api
