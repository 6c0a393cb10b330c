#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "agent/TomlReader.h"

namespace tvpolicy::cli::agent {
namespace {

using Kind = TomlValue::Kind;

/// The value at a path of member names and array indexes ("a.b.0.c"), or null.
const TomlValue* at(const TomlValue& root, const std::string& path)
{
    const TomlValue* value = &root;
    std::size_t start = 0;
    while (value != nullptr && start <= path.size()) {
        const std::size_t end = std::min(path.find('.', start), path.size());
        const std::string part = path.substr(start, end - start);
        if (value->is(Kind::Array)) {
            const std::size_t index = std::stoul(part);
            value = index < value->items.size() ? &value->items[index] : nullptr;
        } else {
            value = value->find(part);
        }
        start = end + 1;
    }
    return value;
}

struct Readable {
    std::string name;
    std::string text;
    std::string path;
    Kind kind;
    std::string expected;  // a string's text, an integer or boolean written out, or a float or date as written
};

class TomlReads : public ::testing::TestWithParam<Readable> {};

TEST_P(TomlReads, TheValueAsWritten)
{
    const Readable& c = GetParam();
    Result<TomlValue> document = TomlReader::read(c.text);
    ASSERT_TRUE(document) << "line " << document.code() << ": " << document.error();
    const TomlValue* value = at(*document, c.path);
    ASSERT_NE(value, nullptr) << c.path;
    EXPECT_EQ(value->kind, c.kind);
    switch (c.kind) {
    case Kind::Integer: EXPECT_EQ(std::to_string(value->integer), c.expected); break;
    case Kind::Boolean: EXPECT_EQ(value->boolean ? "true" : "false", c.expected); break;
    case Kind::Array: EXPECT_EQ(std::to_string(value->items.size()), c.expected); break;
    case Kind::Table: EXPECT_EQ(std::to_string(value->members.size()), c.expected); break;
    default: EXPECT_EQ(value->text, c.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Documents, TomlReads,
    ::testing::Values(
        Readable{"BasicString", "a = \"x\\ty\\u00e9\\U0001F600\\\\\\\"\"", "a", Kind::String,
                 "x\ty\xC3\xA9\xF0\x9F\x98\x80\\\""},
        Readable{"LiteralString", "a = 'C:\\path\\\"'", "a", Kind::String, "C:\\path\\\""},
        Readable{"MultiLineDropsFirstNewline", "a = \"\"\"\none\ntwo\"\"\"", "a", Kind::String, "one\ntwo"},
        Readable{"LineEndingBackslash", "a = \"\"\"one \\  \n\n   two\"\"\"", "a", Kind::String, "one two"},
        Readable{"BackslashBeforeNonAscii", "s = \"\"\"\\\n\xC2\xA7\"\"\"", "s", Kind::String, "\xC2\xA7"},
        Readable{"QuotesBeforeTheClose", "a = \"\"\"\"x\"\"\"\"\"", "a", Kind::String, "\"x\"\""},
        Readable{"MultiLineLiteral", "a = '''\n\\n''is'''''", "a", Kind::String, "\\n''is''"},
        Readable{"CrLfLines", "a = 1\r\nb = \"\"\"x\r\ny\"\"\"\r\n", "b", Kind::String, "x\r\ny"},
        Readable{"ByteOrderMark",
                 "\xEF\xBB\xBF"
                 "a = 'x'",
                 "a", Kind::String, "x"},
        Readable{"Integer", "a = +1_000", "a", Kind::Integer, "1000"},
        Readable{"Hexadecimal", "a = 0xDEAD_beef", "a", Kind::Integer, "3735928559"},
        Readable{"OctalAndBinary", "a = [0o755, 0b1010]", "a.0", Kind::Integer, "493"},
        Readable{"Smallest", "a = -9223372036854775808", "a", Kind::Integer, "-9223372036854775808"},
        Readable{"Largest", "a = 9223372036854775807", "a", Kind::Integer, "9223372036854775807"},
        Readable{"Float", "a = -6.626e-34", "a", Kind::Float, "-6.626e-34"},
        Readable{"Infinity", "a = -inf", "a", Kind::Float, "-inf"},
        Readable{"Boolean", "a = false", "a", Kind::Boolean, "false"},
        Readable{"OffsetDateTime", "a = 1979-05-27T00:32:00.999999-07:00", "a", Kind::DateTime,
                 "1979-05-27T00:32:00.999999-07:00"},
        Readable{"SpaceBetweenDateAndTime", "a = 1979-05-27 07:32:00Z # c", "a", Kind::DateTime,
                 "1979-05-27 07:32:00Z"},
        Readable{"LocalDateAndTime", "a = [2000-02-29, 07:32:00]", "a.1", Kind::DateTime, "07:32:00"},
        Readable{"ArrayOverLines", "a = [\n  1, # one\n  'x',\n  [2],\n]", "a", Kind::Array, "3"},
        Readable{"DottedKeys", "a.b . 'c d' = 1\na.e = 2", "a.b.c d", Kind::Integer, "1"},
        Readable{"QuotedEmptyKey", "\"\" = 1", "", Kind::Integer, "1"},
        Readable{"InlineTable", "a = { b = 1, c.d = 'x' }", "a.c.d", Kind::String, "x"},
        Readable{"HeaderAfterItsSubtable", "[a.b]\nx = 1\n[a]\ny = 2", "a", Kind::Table, "2"},
        Readable{"SubtableOfDottedTable", "[f]\napple.color = 'red'\n[f.apple.texture]\nsmooth = true",
                 "f.apple.texture.smooth", Kind::Boolean, "true"},
        Readable{"ArrayOfTables", "[[p]]\nn = 1\n[p.d]\nx = 1\n[[p]]\nn = 2", "p.1.n", Kind::Integer, "2"},
        Readable{"CommentsAndBlankLines", "# top\n\n  \t\na = 1 # there\n# end", "a", Kind::Integer, "1"}),
    [](const auto& c) { return c.param.name; });

struct Unreadable {
    std::string name;
    std::string text;
    int line;
    std::string message;
};

class TomlRefuses : public ::testing::TestWithParam<Unreadable> {};

TEST_P(TomlRefuses, NamingTheLineAndTheFault)
{
    const Unreadable& c = GetParam();
    Result<TomlValue> document = TomlReader::read(c.text);
    ASSERT_FALSE(document);
    EXPECT_EQ(document.code(), c.line) << document.error();
    EXPECT_NE(document.error().find(c.message), std::string::npos) << document.error();
}

INSTANTIATE_TEST_SUITE_P(
    Documents, TomlRefuses,
    ::testing::Values(
        Unreadable{"UnquotedText", "a = 1\nserver = nac.example.net", 2, "`nac.example.net` is not a value"},
        Unreadable{"NoEquals", "a 1", 1, "expected '=' after the key a, found '1'"},
        Unreadable{"NoValue", "a =\nb = 1", 1, "expected a value, found the end of the line"},
        Unreadable{"TwoOnALine", "a = 1 b = 2", 1, "expected the end of the line, found 'b'"},
        Unreadable{"DuplicateKey", "a = 1\na = 2", 2, "a is defined twice"},
        Unreadable{"DuplicateTable", "[a]\n[b]\n[a]", 3, "the table [a] is defined twice"},
        Unreadable{"HeaderOverDottedTable", "[f]\napple.color = 1\n[f.apple]", 3, "[f.apple] is defined twice"},
        Unreadable{"DottedKeyIntoHeadedTable", "[a.b.c]\n[a]\nb.c.t = 1", 3,
                   "a dotted key cannot add to b, which is defined elsewhere"},
        Unreadable{"DottedKeyIntoInlineTable", "a = {b = 1}\na.c = 2", 2, "cannot add to a"},
        Unreadable{"HeaderIntoValue", "a = 1\n[a.b]", 2, "a is defined as a value"},
        Unreadable{"ArrayHeaderOverTable", "[a]\n[[a]]", 2, "a is defined otherwise"},
        Unreadable{"HeaderAcrossLines", "[\nlogin]\n\"\"=\"\"", 1, "expected a key, found the end of the line"},
        Unreadable{"NonAsciiOutsideStrings",
                   "intrval=3\xCD\xA3"
                   "acert\x01\"",
                   1, "found U+0363"},
        Unreadable{"NotUtf8", "a = 'x'\nb = '\xC3\x28'", 2, "not UTF-8"},
        Unreadable{"EncodedSurrogate", "a = '\xED\xA0\x80'", 1, "not UTF-8"},
        Unreadable{"ControlInString", "a = \"x\x01\"", 1, "a control character (U+0001) in a string"},
        Unreadable{"ControlInComment", "# x\x7f", 1, "in a comment"},
        Unreadable{"LoneCarriageReturn", "a = 1\rb = 2", 1, "a carriage return"},
        Unreadable{"StringAcrossLines", "a = \"x\ny\"", 1, "not closed on its line"},
        Unreadable{"UnclosedMultiLine", "a = '''x\n\ny", 3, "not closed"},
        Unreadable{"UnknownEscape", "a = \"\\x41\"", 1, "unknown escape"},
        Unreadable{"SurrogateEscape", "a = \"\\uD800\"", 1, "names no Unicode character"},
        Unreadable{"ShortUnicodeEscape", "a = \"\\u12\"", 1, "needs 4 hexadecimal digits"},
        Unreadable{"SixQuotesClose", "a = \"\"\"x\"\"\"\"\"\"", 1, "more than five quotes"},
        Unreadable{"LeadingZero", "a = 012", 1, "is not a value"},
        Unreadable{"DoubleUnderscore", "a = 1__2", 1, "is not a value"},
        Unreadable{"SignedHex", "a = -0x1", 1, "is not a value"},
        Unreadable{"TooLarge", "a = 9223372036854775808", 1, "outside the 64-bit range"},
        Unreadable{"HexTooLarge", "a = 0xFFFFFFFFFFFFFFFF", 1, "outside the 64-bit range"},
        Unreadable{"FractionWithoutDigits", "a = 1.", 1, "is not a value"},
        Unreadable{"NoDay31InApril", "a = 2021-04-31", 1, "is not a value"},
        Unreadable{"NotALeapYear", "a = 1900-02-29", 1, "is not a value"},
        Unreadable{"Hour24", "a = 24:00:00", 1, "is not a value"},
        Unreadable{"MissingComma", "a = [1 2]", 1, "expected ',' or ']' in an array, found '2'"},
        Unreadable{"EmptyElement", "a = [1,,2]", 1, "expected a value, found ','"},
        Unreadable{"InlineTableOverLines", "a = { b = 1,\n c = 2 }", 1, "expected a key, found the end of the line"},
        Unreadable{"InlineTrailingComma", "a = { b = 1, }", 1, "expected a key, found '}'"},
        Unreadable{"UnclosedArray", "a = [1,\n2,\n", 3, "expected a value, found the end of the text"},
        Unreadable{"MultiLineKey", "\"\"\"a\"\"\" = 1", 1, "a key cannot be a multi-line string"}),
    [](const auto& c) { return c.param.name; });

// Nesting is bounded, so that no text can take the reader (or the values' destruction)
// deeper than the stack allows.
TEST(TomlReader, NestingStopsAtItsLimit)
{
    const std::size_t limit = TomlReader::maxDepth;
    auto nested = [](std::size_t depth) { return "a = " + std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_TRUE(TomlReader::read(nested(limit)));
    Result<TomlValue> deeper = TomlReader::read(nested(limit + 1));
    ASSERT_FALSE(deeper);
    EXPECT_NE(deeper.error().find("nest more than"), std::string::npos) << deeper.error();
    EXPECT_FALSE(TomlReader::read("a = " + std::string(1000000, '{')));

    std::string longKey = "k";
    for (std::size_t i = 1; i < limit; ++i) {
        longKey += ".k";
    }
    EXPECT_TRUE(TomlReader::read("[" + longKey + "]"));
    Result<TomlValue> tooLong = TomlReader::read("[" + longKey + ".k]");
    ASSERT_FALSE(tooLong);
    EXPECT_NE(tooLong.error().find("more than"), std::string::npos) << tooLong.error();
}

// A key is looked up by name, not by a walk over its table: a table of 200,000 keys, and a
// duplicate at its end, are read at once rather than in minutes.
TEST(TomlReader, ManyKeysAndADuplicateAtTheEnd)
{
    std::string text;
    const int keys = 200000;
    for (int i = 0; i < keys; ++i) {
        text += "k" + std::to_string(i) + " = " + std::to_string(i) + "\n";
    }
    Result<TomlValue> document = TomlReader::read(text);
    ASSERT_TRUE(document) << document.error();
    EXPECT_EQ(document->members.size(), static_cast<std::size_t>(keys));
    EXPECT_EQ(document->find("k123456")->integer, 123456);

    Result<TomlValue> duplicate = TomlReader::read(text + "k7 = 1\n");
    ASSERT_FALSE(duplicate);
    EXPECT_EQ(duplicate.code(), keys + 1);
    EXPECT_NE(duplicate.error().find("k7 is defined twice"), std::string::npos) << duplicate.error();
}

// Members keep the order of the file, which is the order in which their faults are named.
TEST(TomlReader, MembersInTheOrderWritten)
{
    Result<TomlValue> document = TomlReader::read("z = 1\na = 2\n[m]\n[b]");
    ASSERT_TRUE(document) << document.error();
    std::vector<std::string> keys;
    for (const TomlMember& member : document->members) {
        keys.push_back(member.key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"z", "a", "m", "b"}));
}

}  // namespace
}  // namespace tvpolicy::cli::agent
