#pragma once

#include <string>

#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/export.h>

/// The `AvastVersion` element: compares the newest date among the virus databases named
/// "fileName" (default "400.vps") below "startPath" (default "/Applications") with "required",
/// as year-month-day text. Without any database the date is "0".
///
/// Attributes: "required", "delim", "startPath", "fileName", "operation".
class TVPOLICY_API AvastVersionTask : public VersionCheckTask {
public:
    static Task* create();
    std::string getType() override;

    static bool dummy;

private:
    std::string foundVersion() override;
    void setOwnAttribute(const Attribute& attribute) override;

    std::string unused_;  // kept with the task's shape; nothing sets or reads it
    std::string startPath_ = "/Applications";
    std::string fileName_ = "400.vps";
};
