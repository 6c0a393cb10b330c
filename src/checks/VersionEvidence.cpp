#include <tvpolicy/checks/VersionEvidence.h>

#include <utility>

namespace tvpolicy {

VersionEvidence::~VersionEvidence() = default;

void VersionEvidence::recordComparison(std::string found, std::string required, std::string operation)
{
    found_ = std::move(found);
    required_ = std::move(required);
    operation_ = std::move(operation);
}

}  // namespace tvpolicy
