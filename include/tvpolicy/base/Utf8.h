#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <tvpolicy/export.h>

namespace tvpolicy::utf8 {

// UTF-8 text as the library and its tools read and write it (one codec, ICU's).

/// The code point that stands for what cannot be read or written as text.
constexpr std::int32_t replacement = 0xFFFD;

/// Decodes the character at byte `i` of `text` and moves `i` past it. A byte that starts no
/// valid sequence is a character of its own: `i` moves by one and the result is negative.
TVPOLICY_API std::int32_t next(std::string_view text, std::size_t& i);

/// Appends `c` to `out` as UTF-8; what is no code point (negative, a surrogate, past U+10FFFF)
/// is appended as U+FFFD.
TVPOLICY_API void append(std::string& out, std::int32_t c);

/// `text` with every byte that starts no valid sequence replaced by U+FFFD.
TVPOLICY_API std::string valid(std::string_view text);

/// UTF-8 of `length` UTF-16 code units; a lone surrogate becomes U+FFFD.
TVPOLICY_API std::string fromUtf16(const char16_t* units, std::size_t length);

}  // namespace tvpolicy::utf8
