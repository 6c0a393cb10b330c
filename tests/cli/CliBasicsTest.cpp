#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskMap.h>

#include "support/RunCli.h"
#include "support/TempDir.h"

using testing_support::runCli;

namespace {

// Every registered kind, in registration order, as its element with the attributes it reads.
TEST(Cli, TasksListsEveryElementWithItsAttributes)
{
    auto json = runCli({"tasks", "--json"});
    ASSERT_EQ(json.exitCode, 0) << json.err;
    nlohmann::json kinds = nlohmann::json::parse(json.out);
    tvpolicy::registerPostureTasks();  // as the program does at start
    const TaskMap& map = TaskFactory::getMap();
    ASSERT_EQ(kinds.size(), map.size());
    for (std::size_t i = 0; i < map.size(); ++i) {
        EXPECT_EQ(kinds[i]["kind"], map.entry(i).name);
        const std::vector<std::string>* attributes = tvpolicy::TaskCatalog::attributesOf(map.entry(i).name);
        ASSERT_NE(attributes, nullptr) << map.entry(i).name << " describes no attributes";
        EXPECT_EQ(kinds[i]["attributes"], *attributes);
    }
    auto text = runCli({"tasks"});
    EXPECT_NE(text.out.find("\nFile                    fileName startPath lastModified version execute args wait\n"),
              std::string::npos)
        << text.out;
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

INSTANTIATE_TEST_SUITE_P(
    Usage, CliUsageTest,
    testing::Values(
        UsageCase{{"--help"}, 0, "tasks", ""}, UsageCase{{"--version"}, 0, "tvpolicy ", ""},
        UsageCase{{}, 2, "", "subcommand"}, UsageCase{{"nosuchcommand"}, 2, "", "nosuchcommand"},
        UsageCase{{"lnit", "x.xml"}, 2, "", "unknown command or argument 'lnit' (did you mean 'lint'?)"},
        UsageCase{{"--log", "/nonexistent-dir/x.log", "tasks"}, 2, "", "cannot open log file"},
        UsageCase{{"tasks", "-v"}, 0, "ProcessExists", ""},  // global options after the subcommand
        UsageCase{{"compare", "1", "gte", "1", "--log", "/nonexistent-dir/x.log"}, 2, "", "cannot open log file"},
        UsageCase{{"-v", "--log", "/tmp/x.log", "tasks"}, 2, "", "excludes"},
        UsageCase{{"help", "run"}, 0, "Usage: tvpolicy run [OPTIONS] SOURCE\n", ""},
        UsageCase{{"run", "--help"}, 0, "Usage: tvpolicy run [OPTIONS] SOURCE\n", ""},
        UsageCase{{"run", "x.xml", "--jsn"}, 2, "", "unknown command or argument '--jsn' (did you mean '--json'?)"},
        UsageCase{{"monitor", "x.xml", "--onc"}, 2, "", "(did you mean '--once'?)"},
        UsageCase{{"tasks", "--verbos"}, 2, "", "(did you mean '--verbose'?)"},
        UsageCase{{"help"}, 0, "Subcommands:", ""}, UsageCase{{"help", "nosuch"}, 2, "", "no subcommand 'nosuch'"},
        UsageCase{{"monitor", "x.xml", "--count", "0"}, 2, "", "--count: must be at least 1"},
        UsageCase{{"compare", "--help"}, 0, "Default: none, as in a policy's version check", ""}));

// A report that cannot be written is an error of its own (2) that names the file and why,
// whichever report it is.
TEST(Cli, UnwritableReportFilesExitTwoWithTheReason)
{
    testing_support::TempDir dir;
    auto policy =
        dir.write("p.xml", "<policy name=\"p\"><section name=\"s\" primary=\"true\"><true/></section></policy>");
    for (const char* option : {"--report", "--junit", "--output"}) {
        auto result = runCli({"run", policy.string(), "-q", option, "/nonexistent-dir/r.out"});
        EXPECT_EQ(result.exitCode, 2) << option << ": " << result.err;
        EXPECT_NE(result.err.find("/nonexistent-dir/r.out"), std::string::npos) << option << ": " << result.err;
        EXPECT_NE(result.err.find("No such file or directory"), std::string::npos) << option << ": " << result.err;
    }
}

// The policy reader's own limit is told as such, whatever --max-size allows.
TEST(Cli, APolicyOverTheReadersLimitSaysSo)
{
    testing_support::TempDir dir;
    auto policy = dir.write("big.xml", "<policy name=\"p\"><section name=\"s\" primary=\"true\"><true/></section>" +
                                           std::string(17u << 20, ' ') + "</policy>");
    auto result = runCli({"run", policy.string(), "-q", "--max-size", "100"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("more than the 16 MB a policy may have (the policy reader's own limit, which --max-size "
                              "cannot raise)"),
              std::string::npos)
        << result.err;
    EXPECT_EQ(result.err.find("not XML"), std::string::npos) << result.err;
}

// "Reports to:" shows the addresses the policy declares, not the base the library answers for
// every other one.
TEST(Cli, ReportsToListsOnlyDeclaredAddresses)
{
    testing_support::TempDir dir;
    struct Case {
        std::string declared;
        std::string shown;  // the block, empty when none
    };
    const std::vector<Case> cases = {
        {"", ""},
        {"<results><url>/r</url></results>", "Reports to:\n  results: http://nac.example.test//r\n"},
        {"<success><url>http://other.test/ok</url></success><init><url>i</url></init>",
         "Reports to:\n  success: http://other.test/ok\n  init: http://nac.example.test/i\n"},
    };
    for (const Case& c : cases) {
        auto policy = dir.write("p.xml",
                                "<policy name=\"p\" base=\"http://nac.example.test/\"><section name=\"s\" "
                                "primary=\"true\"><true/></section>" +
                                    c.declared + "</policy>");
        auto result = runCli({"run", policy.string(), "-q"});
        std::size_t block = result.out.find("Reports to:");
        std::size_t end = result.out.find("\n\n", block);
        EXPECT_EQ(block == std::string::npos ? "" : result.out.substr(block, end - block + 1), c.shown) << result.out;
    }
}

TEST(Cli, LogFileTakesTheLibrarysLinesAndAppends)
{
    testing_support::TempDir dir;
    auto log = dir.write("agent.log", "earlier line\n");
    auto result = runCli({"--log", log.string(), "tasks"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(testing_support::readFile(log).rfind("earlier line\n", 0), 0u);
}

}  // namespace
