#include "host/AccountNames.h"

#include <cerrno>
#include <vector>

#include <grp.h>
#include <pwd.h>

namespace tvpolicy {

namespace {

// Entries of a directory service can be large; the buffer grows until one fits.
constexpr std::size_t bufferLimit = 1u << 20;

}  // namespace

std::string userNameOf(unsigned long uid)
{
    std::vector<char> buffer(4096);
    struct passwd entry {};
    struct passwd* found = nullptr;
    while (getpwuid_r(static_cast<uid_t>(uid), &entry, buffer.data(), buffer.size(), &found) == ERANGE &&
           buffer.size() < bufferLimit) {
        buffer.resize(buffer.size() * 4);
    }
    return found != nullptr ? std::string(found->pw_name) : std::string();
}

std::string groupNameOf(unsigned long gid)
{
    std::vector<char> buffer(4096);
    struct group entry {};
    struct group* found = nullptr;
    while (getgrgid_r(static_cast<gid_t>(gid), &entry, buffer.data(), buffer.size(), &found) == ERANGE &&
           buffer.size() < bufferLimit) {
        buffer.resize(buffer.size() * 4);
    }
    return found != nullptr ? std::string(found->gr_name) : std::string();
}

}  // namespace tvpolicy
