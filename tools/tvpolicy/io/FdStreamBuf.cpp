#include "io/FdStreamBuf.h"

#include <unistd.h>
#include <cerrno>

namespace tvpolicy::cli {

FdStreamBuf::FdStreamBuf(int fd) : fd_(fd) { setp(buffer_.data(), buffer_.data() + buffer_.size()); }

FdStreamBuf::~FdStreamBuf() { drain(); }

bool FdStreamBuf::drain()
{
    const char* next = pbase();
    while (next < pptr()) {
        ssize_t written = ::write(fd_, next, static_cast<size_t>(pptr() - next));
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            if (firstError_ == 0) {
                firstError_ = errno;
            }
            setp(buffer_.data(), buffer_.data() + buffer_.size());
            return false;
        }
        next += written;
    }
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return true;
}

FdStreamBuf::int_type FdStreamBuf::overflow(int_type c)
{
    if (!drain()) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
    }
    return traits_type::not_eof(c);
}

int FdStreamBuf::sync() { return drain() ? 0 : -1; }

}  // namespace tvpolicy::cli
