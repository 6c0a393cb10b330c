#include "checks/DirectoryStream.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tvpolicy::fs {

namespace {

constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

EntryKind kindOfMode(mode_t mode)
{
    if (S_ISDIR(mode)) {
        return EntryKind::directory;
    }
    return S_ISLNK(mode) ? EntryKind::symlink : EntryKind::other;
}

EntryKind kindOfType(unsigned char type)
{
    switch (type) {
    case DT_DIR: return EntryKind::directory;
    case DT_LNK: return EntryKind::symlink;
    case DT_UNKNOWN: return EntryKind::unknown;
    default: return EntryKind::other;
    }
}

}  // namespace

DirectoryStream DirectoryStream::adopt(int fd, int& error)
{
    if (fd < 0) {
        error = errno;
        return DirectoryStream(nullptr);
    }
    DIR* dir = ::fdopendir(fd);
    if (dir == nullptr) {
        error = errno;
        ::close(fd);
        return DirectoryStream(nullptr);
    }
    error = 0;
    return DirectoryStream(dir);
}

DirectoryStream DirectoryStream::open(const std::string& path, int& error)
{
    return adopt(::open(path.c_str(), directoryFlags), error);
}

DirectoryStream DirectoryStream::openChild(const char* name, int& error) const
{
    return adopt(::openat(::dirfd(dir_.get()), name, directoryFlags | O_NOFOLLOW), error);
}

bool DirectoryStream::next(const char*& name, EntryKind& kind, int& error)
{
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(dir_.get());
        if (entry == nullptr) {
            error = errno;
            return false;
        }
        const char* entryName = entry->d_name;
        if (entryName[0] == '.' && (entryName[1] == '\0' || (entryName[1] == '.' && entryName[2] == '\0'))) {
            continue;
        }
        name = entryName;
        kind = kindOfType(entry->d_type);
        error = 0;
        return true;
    }
}

EntryKind DirectoryStream::kindOf(const char* name) const
{
    struct stat status;
    if (::fstatat(::dirfd(dir_.get()), name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return EntryKind::other;  // gone since it was listed: nothing to descend into
    }
    return kindOfMode(status.st_mode);
}

bool DirectoryStream::leadsToDirectory(const char* name) const
{
    struct stat status;
    return ::fstatat(::dirfd(dir_.get()), name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

bool modificationTime(const std::string& path, std::time_t& when)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0) {
        return false;
    }
    when = status.st_mtime;
    return true;
}

}  // namespace tvpolicy::fs
