#pragma once

#include <string>

#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/export.h>

/// The `VersionFromReceipt` element: compares the major and minor version recorded in an
/// installed package's receipt (/Library/Receipts/<pkg>/Contents/Resources/package_version,
/// lines "major: 4" and "minor: 2") with "required", as major + "delim" + minor.
///
/// Attributes: "required", "pkg", "delim", "operation".
class TVPOLICY_API VersionFromReceiptTask : public VersionCheckTask {
public:
    static Task* create();
    std::string getType() override;

    static bool dummy;

private:
    std::string foundVersion() override;
    void setOwnAttribute(const Attribute& attribute) override;

    std::string pkg_;
};
