// FileMode: a file's owner, group and permission bits are what a policy allows.
#include <cstdio>
#include <vector>

#include <tvpolicy/host/PostureProbe.h>

#include "checks/PostureTask.h"

namespace tvpolicy::checks {

namespace {

std::string octal(unsigned mode)
{
    char text[8];
    std::snprintf(text, sizeof text, "%04o", mode & 07777u);
    return text;
}

// `wanted` names the account or gives its number.
bool sameAccount(const std::string& wanted, const std::string& name, unsigned long id)
{
    return wanted == name || wanted == std::to_string(id);
}

std::string shown(const std::string& name, unsigned long id) { return name.empty() ? std::to_string(id) : name; }

class FileModeTask final : public PostureTask {
public:
    std::string getType() override { return "FileModeTask"; }

private:
    Outcome check() override
    {
        std::string path = attribute("path");
        auto status = currentPosture().fileStatus(path);
        if (!status) {
            return unknown(path + ": " + status.error());
        }
        const PostureProbe::FileStatus& file = *status;
        std::string found = path + ": owner " + shown(file.owner, file.uid) + ", group " + shown(file.group, file.gid) +
                            ", mode " + octal(file.mode);
        std::string owner = attribute("owner");
        std::string group = attribute("group");
        std::string maxMode = attribute("maxMode");
        std::vector<std::string> wrong;
        if (!owner.empty() && !sameAccount(owner, file.owner, file.uid)) {
            wrong.push_back("owner is not " + owner);
        }
        if (!group.empty() && !sameAccount(group, file.group, file.gid)) {
            wrong.push_back("group is not " + group);
        }
        unsigned allowed = 0;
        if (!maxMode.empty() && parseOctalMode(maxMode, allowed) && (file.mode & 07777u & ~allowed) != 0) {
            wrong.push_back("mode exceeds " + maxMode);
        }
        for (const auto& reason : wrong) {
            found += "; " + reason;
        }
        return {wrong.empty(), found};
    }
};

}  // namespace

Task* createFileMode() { return new FileModeTask; }

}  // namespace tvpolicy::checks
