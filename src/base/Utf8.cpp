#include <tvpolicy/base/Utf8.h>

#include <algorithm>
#include <climits>

#include <unicode/ustring.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace tvpolicy::utf8 {

std::int32_t next(std::string_view text, std::size_t& i)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    // ICU indexes with 32 bits; a longer text is decoded as far as that reaches.
    const auto length = static_cast<std::int32_t>(std::min<std::size_t>(text.size(), INT32_MAX));
    auto at = static_cast<std::int32_t>(i);
    UChar32 c = 0;
    U8_NEXT(bytes, at, length, c);
    i = c < 0 ? i + 1 : static_cast<std::size_t>(at);
    return c;
}

void append(std::string& out, std::int32_t c)
{
    if (c < 0 || c > 0x10FFFF || U_IS_SURROGATE(c)) {
        c = replacement;
    }
    std::uint8_t bytes[U8_MAX_LENGTH];
    std::int32_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, c);
    out.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

std::string valid(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        std::size_t start = i;
        std::int32_t c = next(text, i);
        if (c < 0) {
            append(out, replacement);
        } else {
            out.append(text.substr(start, i - start));
        }
    }
    return out;
}

std::string fromUtf16(const char16_t* units, std::size_t length)
{
    static_assert(sizeof(char16_t) == sizeof(UChar), "ICU's code units are 16 bits");
    std::string out;
    if (units == nullptr || length == 0 || length > static_cast<std::size_t>(INT32_MAX / 3)) {
        return out;
    }
    // Names and values are mostly ASCII: copied as they are, without the converter.
    std::size_t ascii = 0;
    while (ascii < length && units[ascii] < 0x80) {
        ++ascii;
    }
    if (ascii == length) {
        out.assign(units, units + length);
        return out;
    }
    // At most three bytes per code unit; what is not used is given back, since a parsed
    // document keeps many of these.
    out.resize(3 * length);
    std::int32_t size = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(out.data(), static_cast<std::int32_t>(out.size()), &size, reinterpret_cast<const UChar*>(units),
                       static_cast<std::int32_t>(length), replacement, nullptr, &status);
    out.resize(U_SUCCESS(status) ? static_cast<std::size_t>(size) : 0);
    out.shrink_to_fit();
    return out;
}

}  // namespace tvpolicy::utf8
