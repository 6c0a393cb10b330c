#include "host/probe/PosixFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/AccountNames.h"

namespace tvpolicy::probe {

bool readAt(int dirFd, const char* path, std::size_t limit, std::string& text)
{
    OwnedFd fd(::openat(dirFd, path, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    // A file past the limit is read as far as the limit; a FIFO as far as it has written.
    return fd.valid() && readBounded(fd.get(), limit, text) != ReadEnd::Failed;
}

Result<std::string> readText(const std::string& path, std::size_t limit)
{
    std::string text;
    if (readAt(AT_FDCWD, path.c_str(), limit, text)) {
        return text;
    }
    return Failure{std::strerror(errno)};
}

PostureProbe::Fact<PostureProbe::FileStatus> statFile(const std::string& path)
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return PostureProbe::Fact<PostureProbe::FileStatus>(Failure{std::strerror(errno)});
    }
    PostureProbe::FileStatus found;
    found.uid = status.st_uid;
    found.gid = status.st_gid;
    found.mode = static_cast<unsigned>(status.st_mode) & 07777u;
    found.owner = userNameOf(status.st_uid);
    found.group = groupNameOf(status.st_gid);
    return PostureProbe::Fact<PostureProbe::FileStatus>(found);
}

}  // namespace tvpolicy::probe
