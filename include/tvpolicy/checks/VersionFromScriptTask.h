#pragma once

#include <string>

#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/export.h>

/// The `VersionFromScript` element: compares what a shell command prints on its standard output
/// (all of it, read through a 256-byte buffer, trailing newline included) with "required".
/// Without a command the version is "0".
///
/// A script that the process's command gate refuses is not run: the check fails with the
/// gate's reason as its message.
///
/// Attributes: "required", "script", "delim", "operation".
class TVPOLICY_API VersionFromScriptTask : public VersionCheckTask {
public:
    static Task* create();
    std::string getType() override;
    TaskResponse* perform() override;

    static bool dummy;

private:
    std::string foundVersion() override;
    void setOwnAttribute(const Attribute& attribute) override;

    std::string script_;
};
