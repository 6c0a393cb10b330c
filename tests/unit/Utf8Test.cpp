// The one UTF-8 codec: what is kept, what becomes U+FFFD, and that nothing is lost or doubled.
#include <tvpolicy/base/Utf8.h>

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string fffd = "\xEF\xBF\xBD";

TEST(Utf8, InvalidBytesBecomeOneReplacementEach)
{
    struct Row {
        const char* title;
        std::string in;
        std::string out;
    } rows[] = {
        {"ascii", "abc", "abc"},
        {"two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {"a lone continuation byte", "a\x80z", "a" + fffd + "z"},
        {"a sequence cut short at the end", "a\xE2\x82", "a" + fffd + fffd},
        {"an overlong slash", "\xC0\xAF", fffd + fffd},
        {"an encoded surrogate", "\xED\xA0\x80", fffd + fffd + fffd},
        {"past U+10FFFF", "\xF4\x90\x80\x80", fffd + fffd + fffd + fffd},
        {"Latin-1 text", "caf\xE9 ol\xE9", "caf" + fffd + " ol" + fffd},
        {"a NUL byte is text", std::string("a\0b", 3), std::string("a\0b", 3)},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(tvpolicy::utf8::valid(row.in), row.out) << row.title;
    }
}

TEST(Utf8, NextAndAppendRoundTripEveryKindOfCodePoint)
{
    for (std::int32_t c : {0x41, 0xE9, 0x7FF, 0x800, 0x20AC, 0xFFFF, 0x10000, 0x1F600, 0x10FFFF}) {
        std::string text;
        tvpolicy::utf8::append(text, c);
        std::size_t i = 0;
        EXPECT_EQ(tvpolicy::utf8::next(text, i), c);
        EXPECT_EQ(i, text.size());
    }
    for (std::int32_t notACodePoint : {-1, 0xD800, 0xDFFF, 0x110000}) {
        std::string text;
        tvpolicy::utf8::append(text, notACodePoint);
        EXPECT_EQ(text, fffd) << notACodePoint;
    }
}

TEST(Utf8, FromUtf16ReplacesLoneSurrogates)
{
    const char16_t pair[] = {u'a', 0xD83D, 0xDE00, u'b'};
    EXPECT_EQ(tvpolicy::utf8::fromUtf16(pair, 4),
              "a\xF0\x9F\x98\x80"
              "b");
    const char16_t lone[] = {u'a', 0xDC00, u'b'};
    EXPECT_EQ(tvpolicy::utf8::fromUtf16(lone, 3), "a" + fffd + "b");
    EXPECT_EQ(tvpolicy::utf8::fromUtf16(nullptr, 3), "");
}

}  // namespace
