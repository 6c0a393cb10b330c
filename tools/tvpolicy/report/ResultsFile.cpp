#include "report/ResultsFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>
#include <fcntl.h>
#include <sys/stat.h>
#include <stdlib.h>
#include <unistd.h>

#include "io/UniqueFd.h"

namespace tvpolicy::cli {

bool writeFileAtomically(const std::string& path, const std::string& content, std::string& why)
{
    std::string pattern = path + ".XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    UniqueFd file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) {
        why = "cannot create a file beside '" + path + "': " + std::strerror(errno);
        return false;
    }
    auto fail = [&](const char* step) {
        why = std::string(step) + " '" + path + "': " + std::strerror(errno);
        ::unlink(name.data());
        return false;
    };
    for (std::size_t done = 0; done < content.size();) {
        ssize_t written = ::write(file.get(), content.data() + done, content.size() - done);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return fail("cannot write");
        }
        done += static_cast<std::size_t>(written);
    }
    // The new file takes the permissions a file created plainly would have.
    mode_t mask = ::umask(0);
    ::umask(mask);
    if (::fchmod(file.get(), 0666 & ~mask) != 0 || ::fsync(file.get()) != 0) {
        return fail("cannot write");
    }
    if (::close(file.release()) != 0) {
        return fail("cannot write");
    }
    if (std::rename(name.data(), path.c_str()) != 0) {
        return fail("cannot replace");
    }
    return true;
}

}  // namespace tvpolicy::cli
