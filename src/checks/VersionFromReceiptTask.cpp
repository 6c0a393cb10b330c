#include <tvpolicy/checks/VersionFromReceiptTask.h>

#include <cctype>
#include <fstream>
#include <sstream>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>

#include "checks/TaskAttributes.h"

bool VersionFromReceiptTask::dummy = TaskFactory::addTask("VersionFromReceiptTask", &VersionFromReceiptTask::create);
namespace {
const bool described =
    tvpolicy::TaskCatalog::describe("VersionFromReceiptTask", tvpolicy::checks::versionCheckAttributes({"pkg"}));
}  // namespace

Task* VersionFromReceiptTask::create() { return new VersionFromReceiptTask; }

std::string VersionFromReceiptTask::getType() { return "VersionFromReceiptTask"; }

void VersionFromReceiptTask::setOwnAttribute(const Attribute& attribute)
{
    tvpolicy::checks::assignAttribute(attribute, {{"pkg", &pkg_}});
}

std::string VersionFromReceiptTask::foundVersion()
{
    std::string major;
    std::string minor;
    if (!pkg_.empty()) {
        std::ifstream receipt(
            tvpolicy::currentHost().systemPath("/Library/Receipts/" + pkg_ + "/Contents/Resources/package_version"));
        std::string line;
        while (std::getline(receipt, line)) {
            std::istringstream words(line);
            std::string key;
            std::string value;
            words >> key >> value;
            for (char& c : key) {
                c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            }
            if (key == "major:") {
                major = value;
            } else if (key == "minor:") {
                minor = value;
            }
        }
    }
    return major + delim_ + minor;
}
