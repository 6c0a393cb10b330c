#pragma once

#include <string>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// What a version check compared in its last perform, for tools that explain an outcome: the
/// version found on this computer, the version the policy asks for, and the comparison as the
/// policy wrote it (an unknown or empty operation compares as "gte"). Empty before the first
/// perform. The check's own response stays as it is.
class TVPOLICY_API VersionEvidence {
public:
    virtual ~VersionEvidence();

    const std::string& lastFoundVersion() const { return found_; }
    const std::string& lastRequiredVersion() const { return required_; }
    const std::string& lastOperation() const { return operation_; }

protected:
    void recordComparison(std::string found, std::string required, std::string operation);

private:
    std::string found_;
    std::string required_;
    std::string operation_;
};

}  // namespace tvpolicy
