#pragma once

#include <cstddef>
#include <string>

#include <unistd.h>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// One file descriptor (POSIX, so every backend's), closed when the object ends or is reset.
class OwnedFd {
public:
    OwnedFd() = default;
    explicit OwnedFd(int fd) : fd_(fd) {}
    ~OwnedFd() { reset(); }
    OwnedFd(OwnedFd&& other) noexcept : fd_(other.release()) {}
    OwnedFd& operator=(OwnedFd&& other) noexcept
    {
        if (this != &other) {
            reset(other.release());
        }
        return *this;
    }
    OwnedFd(const OwnedFd&) = delete;
    OwnedFd& operator=(const OwnedFd&) = delete;

    int get() const { return fd_; }
    bool valid() const { return fd_ >= 0; }
    explicit operator bool() const { return valid(); }
    /// Gives the descriptor up without closing it.
    int release()
    {
        int fd = fd_;
        fd_ = -1;
        return fd;
    }
    void reset(int fd = -1)
    {
        if (fd_ >= 0) {
            ::close(fd_);
        }
        fd_ = fd;
    }

private:
    int fd_ = -1;
};

/// How a bounded read ended.
enum class ReadEnd {
    Complete,    ///< the end of the file was reached within the limit
    OverLimit,   ///< there was more than the limit: the text holds the first `limit` bytes
    WouldBlock,  ///< a descriptor without blocking had nothing more for now: the text holds what came
    Failed,      ///< a read failed; errno says why, and the text holds what came before
};

/// Reads `fd` from where it stands into `text` (replacing it), up to `limit` bytes. A regular
/// file is read into a string of its size at once; other files (pipes, /proc, /sys) grow it as
/// they go. Interrupted reads are resumed.
TVPOLICY_API ReadEnd readBounded(int fd, std::size_t limit, std::string& text);

}  // namespace tvpolicy
