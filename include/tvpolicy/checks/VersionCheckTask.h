#pragma once

#include <string>

#include <tvpolicy/checks/VersionEvidence.h>
#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// What the application and antivirus version checks share: a "required" version, a "delim"
/// set and an "operation" text (unknown or empty means "gte"), and a perform that compares the
/// version the kind finds on this computer with them (normalisation off). The response is the
/// bare outcome: `code` -1, no message, no detail.
class TVPOLICY_API VersionCheckTask : public Task, public tvpolicy::VersionEvidence {
public:
    /// Takes "required", "delim" and "operation"; hands every other attribute to the kind.
    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;

protected:
    /// The version found on this computer.
    virtual std::string foundVersion() = 0;
    /// An attribute other than the three shared ones; unknown names are ignored.
    virtual void setOwnAttribute(const Attribute& attribute);

    std::string required_;
    std::string delim_;
    std::string operation_;
};
