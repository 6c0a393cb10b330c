#pragma once

#include <array>
#include <streambuf>

namespace tvpolicy::cli {

/// A buffered output stream buffer over a file descriptor that it does not own.
class FdStreamBuf : public std::streambuf {
public:
    explicit FdStreamBuf(int fd);
    ~FdStreamBuf() override;
    FdStreamBuf(const FdStreamBuf&) = delete;
    FdStreamBuf& operator=(const FdStreamBuf&) = delete;

    /// The errno of the first write that failed; 0 while every write went through.
    int firstError() const { return firstError_; }

protected:
    int_type overflow(int_type c) override;
    int sync() override;

private:
    bool drain();

    int fd_;
    int firstError_ = 0;
    std::array<char, 4096> buffer_{};
};

}  // namespace tvpolicy::cli
