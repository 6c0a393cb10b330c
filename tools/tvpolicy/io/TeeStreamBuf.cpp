#include "io/TeeStreamBuf.h"

namespace tvpolicy::cli {

TeeStreamBuf::TeeStreamBuf(std::ostream& stream, std::string& copy, bool enabled)
    : stream_(stream),
      copy_(copy),
      original_(stream.rdbuf()),
      enabled_(enabled)
{
    if (enabled_) {
        stream_.rdbuf(this);
    }
}

TeeStreamBuf::~TeeStreamBuf()
{
    if (enabled_) {
        stream_.rdbuf(original_);
    }
}

TeeStreamBuf::int_type TeeStreamBuf::overflow(int_type c)
{
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    copy_ += traits_type::to_char_type(c);
    return original_ != nullptr ? original_->sputc(traits_type::to_char_type(c)) : c;
}

std::streamsize TeeStreamBuf::xsputn(const char* text, std::streamsize count)
{
    copy_.append(text, static_cast<std::size_t>(count));
    return original_ != nullptr ? original_->sputn(text, count) : count;
}

int TeeStreamBuf::sync() { return original_ != nullptr ? original_->pubsync() : 0; }

}  // namespace tvpolicy::cli
