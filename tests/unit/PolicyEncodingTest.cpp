// A policy reads the same in every encoding the XML reader knows: UTF-16 and UTF-32 in either
// byte order, with or without a byte-order mark, junk around the markup included.
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/PolicyText.h"
#include "xml/XmlText.h"

namespace {

using testing_support::parsePolicy;

// The UTF-8 twin of a UTF-16 text, through the library's own conversion.
std::string utf8(const std::u16string& text) { return tvpolicy::xml::utf8(text.c_str(), text.size()); }

void putUnit(std::string& out, std::uint32_t unit, int width, bool bigEndian)
{
    for (int i = 0; i < width; ++i) {
        int shift = 8 * (bigEndian ? width - 1 - i : i);
        out += static_cast<char>((unit >> shift) & 0xFF);
    }
}

// `text` in UTF-16 (width 2) or UTF-32 (width 4, surrogate pairs joined).
std::string wide(const std::u16string& text, int width, bool bigEndian, bool mark)
{
    std::string out;
    if (mark) {
        putUnit(out, 0xFEFF, width, bigEndian);
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t unit = text[i];
        if (width == 4 && unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size()) {
            unit = 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00);
        }
        putUnit(out, unit, width, bigEndian);
    }
    return out;
}

const std::u16string body =
    u"<policy name=\"p\u00e9\" base=\"http://nac/\"><success><url>ok.jsp</url></success>"
    u"<section name=\"s\U0001F600\"><true/></section><section name=\"t\"><false/></section>"
    u"<primaryIP>10.0.0.1</primaryIP><note>v\u4e2d</note></policy>";
const std::u16string document = u"leading junk\n" + body + u"\ntrailing junk";

struct EncodingCase {
    std::string name;
    std::string text;
};

class PolicyEncodingTest : public testing::TestWithParam<EncodingCase> {};

TEST_P(PolicyEncodingTest, ReadsAsItsUtf8Twin)
{
    auto twin = parsePolicy(utf8(document));
    ASSERT_FALSE(twin.policy->getFatalParseError()) << twin.out;
    auto parsed = parsePolicy(GetParam().text);
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    EXPECT_EQ(parsed.policy->getName(), "p\xc3\xa9");
    EXPECT_EQ(parsed.policy->getName(), twin.policy->getName());
    EXPECT_EQ(parsed.policy->getSuccessUrl(), twin.policy->getSuccessUrl());
    EXPECT_EQ(parsed.policy->getPrimaryIP(), twin.policy->getPrimaryIP());
    EXPECT_EQ(parsed.policy->getExtraInformation(), twin.policy->getExtraInformation());
    std::vector<std::string> keys, twinKeys;
    for (const auto& item : parsed.policy->getSections()) {
        keys.push_back(item.first);
    }
    for (const auto& item : twin.policy->getSections()) {
        twinKeys.push_back(item.first);
    }
    EXPECT_EQ(keys, twinKeys);
    EXPECT_EQ(parsed.policy->run(), twin.policy->run());
}

INSTANTIATE_TEST_SUITE_P(
    Encodings, PolicyEncodingTest,
    testing::Values(EncodingCase{"Utf8WithMark", "\xef\xbb\xbf" + utf8(document)},
                    EncodingCase{"Utf16LittleEndianWithMark", wide(document, 2, false, true)},
                    EncodingCase{"Utf16BigEndianWithMark", wide(document, 2, true, true)},
                    EncodingCase{"Utf16LittleEndianUnmarked", wide(document, 2, false, false)},
                    EncodingCase{"Utf16BigEndianUnmarked", wide(document, 2, true, false)},
                    EncodingCase{
                        "Utf16UnmarkedWithDeclaration",
                        wide(u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + body + u" junk", 2, false, false)},
                    EncodingCase{"Utf16WithAnOddByteAtTheEnd", wide(document, 2, true, true) + "\x3e"},
                    EncodingCase{"Utf32LittleEndianWithMark", wide(document, 4, false, true)},
                    EncodingCase{"Utf32BigEndianWithMark", wide(document, 4, true, true)}),
    [](const testing::TestParamInfo<EncodingCase>& testCase) { return testCase.param.name; });

// A greater-than byte inside a wide character is not the end of the markup: U+3E3C in UTF-16LE
// is the bytes 3C 3E.
TEST(PolicyEncoding, MarkupIsFoundByCharactersNotBytes)
{
    auto parsed = parsePolicy(wide(u"<policy name=\"\u3e3c\u3c3e\"/>\u3e3c", 2, false, true));
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    EXPECT_EQ(parsed.policy->getName(), utf8(u"\u3e3c\u3c3e"));
}

}  // namespace
