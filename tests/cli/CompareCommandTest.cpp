#include <gtest/gtest.h>

#include "support/RunCli.h"

namespace {

using testing_support::runCli;

struct CompareCliCase {
    std::vector<std::string> args;  // after "compare"
    int exitCode;
    std::string out;
    std::string err;  // expected to be contained in standard error
};

class CompareCli : public testing::TestWithParam<CompareCliCase> {};

TEST_P(CompareCli, PrintsTheOutcome)
{
    const CompareCliCase& c = GetParam();
    std::vector<std::string> args = {"compare"};
    args.insert(args.end(), c.args.begin(), c.args.end());
    auto result = runCli(args);
    EXPECT_EQ(result.exitCode, c.exitCode) << result.err;
    EXPECT_EQ(result.out, c.out);
    if (c.err.empty()) {
        EXPECT_EQ(result.err, "");
    } else {
        EXPECT_NE(result.err.find(c.err), std::string::npos) << result.err;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, CompareCli,
    testing::Values(
        CompareCliCase{
            {"10.6.8", "gte", "10.6"}, 0, "true\n", "read as one number up to its first non-digit (10 against 10)"},
        CompareCliCase{{"5.4.0", "gte", "5.10"}, 0, "true\n", "(5 against 5), as a check without delim reads it"},
        CompareCliCase{{"5.4.0", "gte", "5.10", "--delim", "."}, 1, "false\n", ""},
        CompareCliCase{{"10.6", "gt", "10.6", "--delim", "."}, 1, "false\n", ""},
        CompareCliCase{{"2011-03-15", "gte", "2011-04-01", "--delim", "-"}, 1, "false\n", ""},
        CompareCliCase{{"2011-03-15", "gte", "2011-03-01", "--delim=-"}, 0, "true\n", ""},
        CompareCliCase{{"v10.6.8-beta", "eq", "10.6.8", "--normalize", "--delim", "."}, 0, "true\n", ""},
        CompareCliCase{{"v10.6.8-beta", "eq", "10.6.8"}, 1, "false\n", "(0 against 10)"},
        CompareCliCase{{"3.2.1", "eq", "1.2.3", "--order", "2 1 0", "--delim", "."}, 0, "true\n", ""},
        // An unknown operator is compared as "gte", and the person is told.
        CompareCliCase{{"10.7", "ge", "10.6"}, 0, "true\n", "unknown operator \"ge\": compared as gte"},
        CompareCliCase{{"", "gte", "1"}, 1, "false\n", ""},
        CompareCliCase{{"10.6", "gte"}, 2, "", "REQUESTED is required"}));

TEST(CompareCli, VerboseShowsTheComparisonLog)
{
    auto result = runCli({"-v", "compare", "10.6", "gt", "10.6"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "false\n");
    EXPECT_NE(result.err.find("Debug: Last one"), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("Debug: DelimVersion.. Returning: false"), std::string::npos) << result.err;
}

}  // namespace
