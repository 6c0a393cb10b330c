#include <tvpolicy/checks/DelimVersion.h>

#include <gtest/gtest.h>

#include <iostream>

#include "support/CaptureStream.h"

namespace {

using testing_support::CaptureStream;
using testing_support::logMessages;

// The two lines that close every comparison; they show the system text as passed.
std::vector<std::string> closingLines(const std::string& requested, const std::string& system, const std::string& delim,
                                      bool result)
{
    return {"DelimVersion.. Requested: " + requested + " System: " + system + " Delim: " + delim,
            std::string("DelimVersion.. Returning: ") + (result ? "true" : "false")};
}

DelimVersion withOperator(std::string op, bool normalize)
{
    DelimVersion version(op);
    version.setNormalize(normalize);
    return version;
}

struct CompareCase {
    std::string system;
    std::string op;  // operator text, through parseCmpOper
    std::string requested;
    bool expected;
    std::string delim = ".";
    bool normalize = false;
};

std::ostream& operator<<(std::ostream& out, const CompareCase& c)
{
    return out << "system '" << c.system << "' " << (c.op.empty() ? "<empty>" : c.op) << " requested '" << c.requested
               << "' delim '" << c.delim << "'" << (c.normalize ? " normalised" : "");
}

class DelimVersionRules : public testing::TestWithParam<CompareCase> {};

TEST_P(DelimVersionRules, Compare)
{
    const CompareCase& c = GetParam();
    DelimVersion version = withOperator(c.op, c.normalize);
    CaptureStream log(std::clog);
    EXPECT_EQ(version.versionAtLeast(c.requested, c.delim, c.system), c.expected);

    std::vector<std::string> lines = logMessages(log.text());
    ASSERT_GE(lines.size(), 2u);
    if (c.op != "gt") {
        EXPECT_EQ(lines.size(), 2u) << "only \"gt\" logs its steps";
    }
    EXPECT_EQ(std::vector<std::string>(lines.end() - 2, lines.end()),
              closingLines(c.requested, c.system, c.delim, c.expected));
}

INSTANTIATE_TEST_SUITE_P(Operators, DelimVersionRules,
                         testing::Values(
                             // "gte": the common prefix decides; a shorter system version matching the start passes.
                             CompareCase{"10.6.8", "gte", "10.6", true}, CompareCase{"10.6", "gte", "10.6.8", true},
                             CompareCase{"10.5.9", "gte", "10.6", false}, CompareCase{"10.7", "gte", "10.6.8", true},
                             CompareCase{"10.6.2", "gte", "10.6.10", false},
                             // "eq" and "lte" compare the common prefix only, both ways.
                             CompareCase{"10.5", "eq", "10.5.8", true}, CompareCase{"10.5.8", "eq", "10.5", true},
                             CompareCase{"10.5.1", "eq", "10.5.2", false}, CompareCase{"10.5", "lte", "10.5.8", true},
                             CompareCase{"10.5.9", "lte", "10.5.8", false}, CompareCase{"10.6", "lte", "10.5.8", false},
                             // "gt" breaks ties at the end of the system words.
                             CompareCase{"10.5.1", "gt", "10.5", true}, CompareCase{"10.5.0", "gt", "10.5", true},
                             CompareCase{"10.5", "gt", "10.5.1", false}, CompareCase{"10.6", "gt", "10.6", false},
                             CompareCase{"10.5.9", "gt", "10.6", false},
                             // "lt" breaks ties at the end of the requested words.
                             CompareCase{"10.5", "lt", "10.5.1", true}, CompareCase{"10.5.1", "lt", "10.5", false},
                             CompareCase{"10.5", "lt", "10.5", false}, CompareCase{"10.4.9", "lt", "10.5", true},
                             CompareCase{"10.6", "lt", "10.5.9", false}, CompareCase{"10.7.0", "lt", "10.7.0", false},
                             // Words count as their leading number (atol): text is 0, a sign is read.
                             CompareCase{"10.4.x", "eq", "10.4.0", true}, CompareCase{"10.5b", "eq", "10.5", true},
                             CompareCase{"beta.1", "eq", "0.1", true}, CompareCase{"10.-1", "lt", "10.0", true},
                             CompareCase{"10. 7", "eq", "10.7", true},
                             // Runs of delimiters collapse; the delimiter is a set of characters.
                             CompareCase{"10..5.", "eq", "10.5", true}, CompareCase{"4_1.2", "eq", "4.1.2", true, "._"},
                             CompareCase{"4_1.2", "eq", "4.1.2", false},
                             CompareCase{"2011-03-15", "gte", "2011-03-16", false, "-"},
                             CompareCase{"10.6.8", "eq", "10.6.8", true, ""},
                             CompareCase{"10.6.8", "eq", "10.6.9", true, ""},  // one word each: both read as 10
                             // Empty and delimiter-only versions fail every operator.
                             CompareCase{"", "gte", "10.6", false}, CompareCase{"10.6", "gte", "", false},
                             CompareCase{"...", "lte", "10.6", false}, CompareCase{"", "lt", "", false},
                             CompareCase{"10.6", "gt", "", false},
                             // Unknown operator texts mean "gte".
                             CompareCase{"10.6", "GT", "10.6", true}, CompareCase{"10.6", "", "10.6", true},
                             CompareCase{"10.6", "ne", "10.7", false},
                             // Normalisation keeps digits and delimiters of the system text only.
                             CompareCase{"v10.6.8-beta", "eq", "10.6.8", true, ".", true},
                             CompareCase{"v10.6.8-beta", "eq", "10.6.8", false},
                             CompareCase{"10.4.11 (8S2167)", "eq", "10.4.1182167", true, ".", true},
                             CompareCase{"10.4.11 (8S2167)", "gt", "10.4.11", true, ".", true},
                             CompareCase{"10.4.11 (8S2167)", "gt", "10.4.11", false},
                             CompareCase{"10.6", "eq", "v10.6", false, ".", true}));

TEST(DelimVersion, ParsesOperatorTextsExactly)
{
    const std::vector<std::pair<std::string, short>> cases = {{"gt", 0},  {"gte", 1}, {"eq", 2},  {"lte", 3}, {"lt", 4},
                                                              {"GT", 1},  {"", 1},    {"ge", 1},  {"le", 1},  {"ne", 1},
                                                              {" lt", 1}, {"lt ", 1}, {"gtee", 1}};
    for (auto [text, code] : cases) {
        EXPECT_EQ(DelimVersion::parseCmpOper(text), code) << "'" << text << "'";
    }
}

TEST(DelimVersion, OutOfRangeCodesCompareFalse)
{
    for (short code : {short(-1), short(5), short(100)}) {
        DelimVersion version(code);
        EXPECT_FALSE(version.versionAtLeast("1.0", ".", "1.0")) << code;
        EXPECT_FALSE(version.versionAtLeast("1.0", ".", "2.0")) << code;
    }
    DelimVersion inRange(short(2));
    EXPECT_TRUE(inRange.versionAtLeast("1.0", ".", "1.0"));
}

TEST(DelimVersion, GreaterThanLogsEachStepAndTheTie)
{
    DelimVersion version(std::string("gt"));
    CaptureStream log(std::clog);
    EXPECT_FALSE(version.versionAtLeast("10.6", ".", "10.6"));
    EXPECT_EQ(logMessages(log.text()),
              (std::vector<std::string>{"done = false retval = true", "Last one", "done = true retval = false",
                                        "DelimVersion.. Requested: 10.6 System: 10.6 Delim: .",
                                        "DelimVersion.. Returning: false"}));
}

struct ReorderCase {
    std::string system;
    std::string order;
    std::string op;
    std::string requested;
    bool normalize;
    bool expected;
    std::vector<std::string> log;  // every line before the two closing ones
    std::string shownSystem;       // the system text of the closing "Requested:" line
};

std::ostream& operator<<(std::ostream& out, const ReorderCase& c)
{
    return out << "system '" << c.system << "' order '" << c.order << "' " << c.op << " requested '" << c.requested
               << "'";
}

class DelimVersionReorder : public testing::TestWithParam<ReorderCase> {};

TEST_P(DelimVersionReorder, Compare)
{
    const ReorderCase& c = GetParam();
    DelimVersion version = withOperator(c.op, c.normalize);
    CaptureStream log(std::clog);
    EXPECT_EQ(version.versionAtLeastReorder(c.requested, ".", c.system, c.order), c.expected);

    std::vector<std::string> expected = c.log;
    for (const std::string& line : closingLines(c.requested, c.shownSystem, ".", c.expected)) {
        expected.push_back(line);
    }
    EXPECT_EQ(logMessages(log.text()), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Orders, DelimVersionReorder,
    testing::Values(
        ReorderCase{"3.2.1",
                    "2 1 0",
                    "eq",
                    "1.2.3",
                    false,
                    true,
                    {"Words.size() = 3 max = 2", "ordr size = 3", "1.2.3."},
                    "1.2.3."},
        // An index the version lacks keeps the text as it was.
        ReorderCase{"3.2.1",
                    "0 5",
                    "eq",
                    "3.2.1",
                    false,
                    true,
                    {"Words.size() = 3 max = 5", "ordr size = 2", "Words.size() not > max???", "3.2.1"},
                    "3.2.1"},
        ReorderCase{"3.2.1",
                    "3",
                    "eq",
                    "3.2.1",
                    false,
                    true,
                    {"Words.size() = 3 max = 3", "ordr size = 1", "Words.size() not > max???", "3.2.1"},
                    "3.2.1"},
        // An empty order is no reordering at all.
        ReorderCase{"3.2.1", "", "eq", "3.2.1", false, true, {"3.2.1"}, "3.2.1"},
        // A trailing blank reads the last index once more.
        ReorderCase{
            "3.2.1",
            "2 1 0 ",
            "gt",
            "1.2.3.3",
            false,
            false,
            {"Words.size() = 3 max = 2", "ordr size = 4", "1.2.3.3.", "done = false retval = true",
             "done = false retval = true", "done = false retval = true", "Last one", "done = true retval = false"},
            "1.2.3.3."},
        // Reading stops at the first index that is not a number.
        ReorderCase{
            "3.2.1", "1 x 0", "eq", "2", false, true, {"Words.size() = 3 max = 1", "ordr size = 1", "2."}, "2."},
        ReorderCase{
            "3.2.1", "\t0\n1", "eq", "3.2", false, true, {"Words.size() = 3 max = 1", "ordr size = 2", "3.2."}, "3.2."},
        // Indexes may repeat or be left out.
        ReorderCase{
            "7.8.9", "1 1", "eq", "8.8", false, true, {"Words.size() = 3 max = 1", "ordr size = 2", "8.8."}, "8.8."},
        // A reordering takes the raw words: normalisation is dropped.
        ReorderCase{"v3.2.1",
                    "2 1 0",
                    "eq",
                    "1.2.0",
                    true,
                    true,
                    {"Words.size() = 3 max = 2", "ordr size = 3", "1.2.v3."},
                    "1.2.v3."},
        // Without a reordering normalisation stays; the closing line shows the raw text.
        ReorderCase{"v3.2.1",
                    "9",
                    "eq",
                    "3.2.1",
                    true,
                    true,
                    {"Words.size() = 3 max = 9", "ordr size = 1", "Words.size() not > max???", "3.2.1"},
                    "v3.2.1"}));

}  // namespace
