#include <tvpolicy/base/OwnedFd.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

namespace tvpolicy {

ReadEnd readBounded(int fd, std::size_t limit, std::string& text)
{
    text.clear();
    // One byte past the limit tells a file of exactly `limit` bytes from a longer one.
    const std::size_t wanted = limit == static_cast<std::size_t>(-1) ? limit : limit + 1;
    struct stat status {};
    std::size_t chunk = 4096;
    if (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        chunk = std::max(chunk, std::min(static_cast<std::size_t>(status.st_size) + 1, wanted));
    }
    constexpr std::size_t largestChunk = 1 << 20;
    while (text.size() < wanted) {
        const std::size_t have = text.size();
        const std::size_t want = std::min(chunk, wanted - have);
        text.resize(have + want);
        const ssize_t got = ::read(fd, text.data() + have, want);
        const int error = errno;
        text.resize(have + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
        if (got > 0) {
            // A stream that keeps coming is read in growing pieces.
            if (static_cast<std::size_t>(got) == want) {
                chunk = std::max(chunk, std::min(2 * want, largestChunk));
            }
            continue;
        }
        if (got == 0) {
            return ReadEnd::Complete;
        }
        if (error == EINTR) {
            continue;
        }
        errno = error;
        return error == EAGAIN || error == EWOULDBLOCK ? ReadEnd::WouldBlock : ReadEnd::Failed;
    }
    text.resize(limit);
    return ReadEnd::OverLimit;
}

}  // namespace tvpolicy
