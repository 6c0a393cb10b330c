#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace tvpolicy::cli {

/// While alive (and enabled), what is written to `stream` is also collected in `copy`; the
/// stream's own destination still gets everything.
class TeeStreamBuf : public std::streambuf {
public:
    TeeStreamBuf(std::ostream& stream, std::string& copy, bool enabled);
    ~TeeStreamBuf() override;
    TeeStreamBuf(const TeeStreamBuf&) = delete;
    TeeStreamBuf& operator=(const TeeStreamBuf&) = delete;

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    std::ostream& stream_;
    std::string& copy_;
    std::streambuf* original_;
    bool enabled_;
};

}  // namespace tvpolicy::cli
