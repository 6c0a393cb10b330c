// The peer of a process check: a bare scan of /proc that reads only what the rule needs. A
// process matches NAME when its executable link can be read and the link's file name, or its
// short name (/proc/PID/comm, at most 15 bytes), is NAME. Exit 0 when one matches, 1 otherwise.
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: bare_proc_scan NAME\n", stderr);
        return 2;
    }
    const char* name = argv[1];
    const std::size_t nameLength = std::strlen(name);
    DIR* proc = ::opendir("/proc");
    if (proc == nullptr) {
        return 2;
    }
    const int procFd = ::dirfd(proc);
    char path[300], target[4096], comm[64];
    int found = 1;
    while (const dirent* entry = ::readdir(proc)) {
        if (entry->d_name[0] < '0' || entry->d_name[0] > '9') {
            continue;
        }
        std::snprintf(path, sizeof path, "%s/exe", entry->d_name);
        ssize_t length = ::readlinkat(procFd, path, target, sizeof target - 1);
        if (length <= 0) {
            continue;
        }
        target[length] = '\0';
        const char* slash = std::strrchr(target, '/');
        if (std::strcmp(slash != nullptr ? slash + 1 : target, name) == 0) {
            found = 0;
            break;
        }
        if (nameLength > 15) {
            continue;
        }
        std::snprintf(path, sizeof path, "%s/comm", entry->d_name);
        int fd = ::openat(procFd, path, O_RDONLY | O_CLOEXEC);
        if (fd < 0) {
            continue;
        }
        ssize_t got = ::read(fd, comm, sizeof comm - 1);
        ::close(fd);
        if (got > 0 && comm[got - 1] == '\n') {
            --got;
        }
        if (got >= 0 && static_cast<std::size_t>(got) == nameLength && std::memcmp(comm, name, nameLength) == 0) {
            found = 0;
            break;
        }
    }
    ::closedir(proc);
    return found;
}
