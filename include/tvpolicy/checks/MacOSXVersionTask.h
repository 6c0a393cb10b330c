#pragma once

#include <string>

#include <tvpolicy/checks/VersionEvidence.h>
#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The policy element MacOSXVersion: passes when the running OS's version (Machine::getOSVersion,
/// a version of two words taken as if it ended in ".0") satisfies "major.minor.micro" under the
/// operator of the attribute "operation" ("gt", "gte", "eq", "lte", "lt"; anything else, and
/// no operation at all, means "gte"), compared by DelimVersion at ".".
class TVPOLICY_API MacOSXVersionTask : public Task, public tvpolicy::VersionEvidence {
public:
    static Task* create();

    /// "major", "minor", "micro" and "operation"; other names are ignored.
    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    std::string getType() override;

private:
    static bool dummy;
    std::string major_;
    std::string minor_;
    std::string micro_;
    std::string operation_;
};
