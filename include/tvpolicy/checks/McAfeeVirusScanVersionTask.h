#pragma once

#include <string>

#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/export.h>

/// The `McAfeeVirusScanVersion` element: compares the newest definitions directory under
/// /usr/local/vscanx/dats (entries whose name starts with a digit, newest by plain text order,
/// so 999 beats 5100) with "required". Without any, the version is "0".
///
/// Attributes: "required", "delim", "operation".
class TVPOLICY_API McAfeeVirusScanVersionTask : public VersionCheckTask {
public:
    static Task* create();
    std::string getType() override;

    static bool dummy;

private:
    std::string foundVersion() override;

    std::string unused_;  // kept with the task's shape; nothing sets or reads it
};
