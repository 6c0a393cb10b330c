#pragma once

#include <string>

#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/export.h>

/// The `VersionFromScript` element: compares what a shell command prints on its standard output
/// (all of it, read through a 256-byte buffer, trailing newline included) with "required".
/// Without a command the version is "0".
///
/// Attributes: "required", "script", "delim", "operation".
class TVPOLICY_API VersionFromScriptTask : public VersionCheckTask {
public:
    static Task* create();
    std::string getType() override;

    static bool dummy;

private:
    std::string foundVersion() override;
    void setOwnAttribute(const Attribute& attribute) override;

    std::string script_;
};
