#include <gtest/gtest.h>

#include <tvpolicy/policy/TaskFactory.h>

#include "support/RunCli.h"
#include "support/TempDir.h"


using testing_support::runCli;

namespace {

TEST(Cli, TasksPrintsTheRegistry)
{
    auto result = runCli({"tasks"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    testing::internal::CaptureStdout();
    TaskFactory::dump();
    EXPECT_EQ(result.out, testing::internal::GetCapturedStdout());
    EXPECT_EQ(result.err, "");
}

struct UsageCase {
    std::vector<std::string> args;
    int exitCode;
    std::string inOut;  // text expected on standard output
    std::string inErr;  // text expected on standard error
};

class CliUsageTest : public testing::TestWithParam<UsageCase> {};

TEST_P(CliUsageTest, AnswersWithStatusAndText)
{
    const UsageCase& c = GetParam();
    auto result = runCli(c.args);
    EXPECT_EQ(result.exitCode, c.exitCode) << result.out << result.err;
    EXPECT_NE(result.out.find(c.inOut), std::string::npos) << result.out;
    EXPECT_NE(result.err.find(c.inErr), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(Usage, CliUsageTest, testing::Values(
    UsageCase{{"--help"}, 0, "tasks", ""},
    UsageCase{{"--version"}, 0, "tvpolicy ", ""},
    UsageCase{{}, 2, "", "subcommand"},
    UsageCase{{"nosuchcommand"}, 2, "", "nosuchcommand"},
    UsageCase{{"--log", "/nonexistent-dir/x.log", "tasks"}, 2, "", "cannot open log file"}));

TEST(Cli, LogFileTakesTheLibrarysLinesAndAppends)
{
    testing_support::TempDir dir;
    auto log = dir.write("agent.log", "earlier line\n");
    auto result = runCli({"--log", log.string(), "tasks"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(testing_support::readFile(log).rfind("earlier line\n", 0), 0u);
}

}  // namespace
