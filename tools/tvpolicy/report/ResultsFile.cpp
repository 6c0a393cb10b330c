#include "report/ResultsFile.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli {

Result<void> writeFileAtomically(const std::string& path, const std::string& content)
{
    FileBeside staged(path);
    if (staged.name().empty()) {
        return Failure{staged.why()};
    }
    OwnedFd file(::open(staged.name().c_str(), O_WRONLY | O_CLOEXEC));
    for (std::size_t done = 0; file && done < content.size();) {
        ssize_t written = ::write(file.get(), content.data() + done, content.size() - done);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return Failure{"cannot write '" + path + "': " + std::strerror(errno)};
        }
        done += static_cast<std::size_t>(written);
    }
    if (!file || ::close(file.release()) != 0) {
        return Failure{"cannot write '" + path + "': " + std::strerror(errno)};
    }
    return staged.commit();
}

FileBeside::FileBeside(const std::string& path) : path_(path)
{
    std::string pattern = path + ".XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    OwnedFd file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) {
        why_ = "cannot create a file beside '" + path + "': " + std::strerror(errno);
        return;
    }
    name_ = name.data();
}

FileBeside::~FileBeside()
{
    if (!name_.empty()) {
        ::unlink(name_.c_str());
    }
}

Result<void> FileBeside::commit()
{
    OwnedFd file(::open(name_.c_str(), O_RDONLY | O_CLOEXEC));
    mode_t mask = ::umask(0);
    ::umask(mask);
    if (!file || ::fchmod(file.get(), 0666 & ~mask) != 0 || ::fsync(file.get()) != 0) {
        return Failure{"cannot write '" + path_ + "': " + std::strerror(errno)};
    }
    if (std::rename(name_.c_str(), path_.c_str()) != 0) {
        return Failure{"cannot replace '" + path_ + "': " + std::strerror(errno)};
    }
    name_.clear();
    return {};
}

}  // namespace tvpolicy::cli
