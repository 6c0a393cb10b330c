#include "host/probe/PosixFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/AccountNames.h"
#include "base/OwnedFd.h"

namespace tvpolicy::probe {

bool readAt(int dirFd, const char* path, std::size_t limit, std::string& text)
{
    OwnedFd fd(::openat(dirFd, path, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!fd.valid()) {
        return false;
    }
    text.clear();
    // A regular file is read into a string of its size at once, so that a large one (a package
    // database) is neither copied as the string grows nor read in small pieces; files of
    // /proc and /sys say a size of 0 or 4096 and grow the string as they go.
    struct stat status {};
    std::size_t chunk = 4096;
    if (::fstat(fd.get(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        chunk = std::max(chunk, std::min(static_cast<std::size_t>(status.st_size) + 1, limit));
    }
    while (text.size() < limit) {
        std::size_t have = text.size();
        std::size_t want = std::min(chunk, limit - have);
        text.resize(have + want);
        ssize_t got = ::read(fd.get(), text.data() + have, want);
        text.resize(have + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 && errno == EAGAIN) {
            break;
        }
        if (got < 0) {
            return false;
        }
        if (got == 0) {
            break;
        }
    }
    return true;
}

bool readText(const std::string& path, std::size_t limit, std::string& text, std::string& error)
{
    if (readAt(AT_FDCWD, path.c_str(), limit, text)) {
        return true;
    }
    error = std::strerror(errno);
    return false;
}

PostureProbe::Fact<PostureProbe::FileStatus> statFile(const std::string& path)
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return PostureProbe::Fact<PostureProbe::FileStatus>::failed(std::strerror(errno));
    }
    PostureProbe::FileStatus found;
    found.uid = status.st_uid;
    found.gid = status.st_gid;
    found.mode = static_cast<unsigned>(status.st_mode) & 07777u;
    found.owner = userNameOf(status.st_uid);
    found.group = groupNameOf(status.st_gid);
    return PostureProbe::Fact<PostureProbe::FileStatus>::of(found);
}

}  // namespace tvpolicy::probe
