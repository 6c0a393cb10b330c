#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/RunCli.h"
#include "support/TempDir.h"
#include "support/XmlText.h"

namespace {

using testing_support::runCli;

std::string example(const std::string& name) { return std::string(TVPOLICY_SOURCE_DIR) + "/examples/" + name; }

// Standard error less the warning about a partial process table, which depends on who runs
// the test and what else runs on the machine.
std::string withoutHostWarnings(const std::string& err)
{
    std::string kept;
    std::size_t start = 0;
    while (start < err.size()) {
        std::size_t end = err.find('\n', start);
        end = end == std::string::npos ? err.size() : end + 1;
        std::string line = err.substr(start, end - start);
        if (line.find("processes could not be read fully") == std::string::npos) {
            kept += line;
        }
        start = end;
    }
    return kept;
}

struct ExampleCase {
    std::string file;
    int exitCode;
    std::string verdict;                     // the last line of standard output
    std::vector<std::string> progressLines;  // standard error, in order
};

class RunExampleTest : public testing::TestWithParam<ExampleCase> {};

TEST_P(RunExampleTest, ReportsAndExitsByTheResult)
{
    const ExampleCase& c = GetParam();
    auto result = runCli({"run", example(c.file)});
    EXPECT_EQ(result.exitCode, c.exitCode) << result.out << result.err;
    EXPECT_NE(result.out.find(c.verdict), std::string::npos) << result.out;
    std::string expectedErr;
    for (const std::string& line : c.progressLines) {
        expectedErr += line + "\n";
    }
    EXPECT_EQ(withoutHostWarnings(result.err), expectedErr);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, RunExampleTest,
    testing::Values(
        ExampleCase{"compliant.xml",
                    0,
                    "Policy \"Workstation baseline\": PASS (3 passed, 0 failed, 0 warning, 0 skipped of 3 sections)\n",
                    {"[1/3] Account database present", "[2/3] Agent running", "[3/3] Policy logic"}},
        ExampleCase{"noncompliant.xml",
                    1,
                    "Policy \"Hardened workstation\": FAIL (1 passed, 1 failed, 1 warning, 1 skipped of 4 sections)\n",
                    {"[1/4] Account database present", "[2/4] No plain account database",
                     "[3/4] Endpoint antivirus installed", "[4/4] Remote shell server"}},
        ExampleCase{
            "options.xml",
            0,
            "Policy \"Antivirus choice\": PASS (4 passed, 1 failed, 0 warning, 1 skipped of 6 sections)\n",
            {"[1/6] Vendor antivirus", "[2/6] (passed over) Vendor antivirus definitions", "[3/6] Built-in protection",
             "[4/6] Built-in protection enabled", "[5/6] Agent", "[6/6] Agent configuration"}},
        ExampleCase{
            "file-and-version-checks.xml",
            0,
            "Policy \"File and version checks\": PASS (3 passed, 0 failed, 0 warning, 0 skipped of 3 sections)\n",
            {"[1/3] License texts installed", "[2/3] Kernel 3.2 or later", "[3/3] Legacy agent removed"}},
        ExampleCase{"os-and-processes.xml",
                    0,
                    "Policy \"OS and processes\": PASS (4 passed, 0 failed, 0 warning, 0 skipped of 4 sections)\n",
                    {"[1/4] Debian 12 or later", "[2/4] Newer than Debian 11", "[3/4] Agent running",
                     "[4/4] No telnet server"}}));

TEST(RunCommand, FailedSectionsShowHelpAndInstructions)
{
    auto result = runCli({"run", example("noncompliant.xml")});
    EXPECT_NE(
        result.out.find("Section \"Endpoint antivirus installed\": warning\n"
                        "    File fileName=\"endpoint-av.conf\" startPath=\"/etc\": failed - FileTask/File Not Found\n"
                        "    help: Install the endpoint antivirus package.\n"
                        "    instructions: http://nac.example.test/help/antivirus\n"),
        std::string::npos)
        << result.out;
}

TEST(RunCommand, JsonIsOneCleanDocumentEvenWithTheLibraryLogShown)
{
    auto result = runCli({"-v", "run", "--json", example("noncompliant.xml")});
    ASSERT_EQ(result.exitCode, 1) << result.err;
    nlohmann::json report = nlohmann::json::parse(result.out);  // throws on anything but one document
    EXPECT_EQ(report["policy"], "Hardened workstation");
    EXPECT_EQ(report["result"], "FAIL");
    EXPECT_EQ(report["passed"], false);
    EXPECT_EQ(
        report["counts"],
        nlohmann::json::parse(R"({"sections":4,"passed":1,"failed":1,"warning":1,"skipped":1,"notEvaluated":0})"));
    EXPECT_EQ(report["progress"]["max"], 4);
    std::vector<unsigned> statuses;
    for (const auto& item : report["items"]) {
        statuses.push_back(item["status"]);
    }
    EXPECT_EQ(statuses, (std::vector<unsigned>{1, 3, 5, 4}));
    const auto& prohibited = report["items"][1];
    EXPECT_EQ(prohibited["key"], "002No plain account database");
    EXPECT_EQ(prohibited["prohibit"], true);
    EXPECT_EQ(prohibited["tasks"][0]["type"], "FileTask");
    EXPECT_EQ(prohibited["tasks"][0]["passed"], true);
    EXPECT_FALSE(report.contains("trace"));
    EXPECT_NE(result.err.find("startElement qname = policy"), std::string::npos);  // the log went to stderr
}

TEST(RunCommand, OptionsNestTheirSectionsInJson)
{
    auto result = runCli({"run", "--json", example("options.xml")});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    nlohmann::json report = nlohmann::json::parse(result.out);
    const auto& option = report["items"][0];
    EXPECT_EQ(option["kind"], "option");
    EXPECT_EQ(option["primaryGroup"], "builtin");
    ASSERT_EQ(option["sections"].size(), 4u);
    EXPECT_EQ(option["sections"][1]["statusText"], "skipped");
    EXPECT_TRUE(option["sections"][1]["tasks"][0]["passed"].is_null());  // never performed
}

TEST(RunCommand, TraceShowsTheEvaluation)
{
    auto text = runCli({"run", "--trace", example("compliant.xml")});
    EXPECT_EQ(text.exitCode, 0);
    for (const char* line :
         {"Running_Policy Workstation baseline\n", "\tTesting Agent running\n", "\t\tProcessExistsTask Passed \n",
          "\t\t\tInfo: Process Running\n", "Policy Workstation baseline Passed \n"}) {
        EXPECT_NE(text.out.find(line), std::string::npos) << line;
    }
    auto json = runCli({"run", "--json", "--trace", example("compliant.xml")});
    nlohmann::json report = nlohmann::json::parse(json.out);
    ASSERT_TRUE(report["trace"].is_array());
    std::string first = report["trace"][0];
    EXPECT_EQ(first.substr(first.size() - 35), "Running_Policy Workstation baseline");
}

TEST(RunCommand, ReadsStandardInput)
{
    auto result =
        runCli({"run", "-"}, "<policy name=\"in\"><section name=\"s\" primary=\"true\"><false/></section></policy>");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.out.find("Policy \"in\": FAIL"), std::string::npos);
    EXPECT_EQ(result.err, "[1/1] s\n");
}

TEST(RunCommand, MissingSourceIsAUsageError)
{
    auto missing = runCli({"run", "/nonexistent/policy.xml"});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.err, "tvpolicy run: cannot read '/nonexistent/policy.xml': No such file or directory\n");
    auto none = runCli({"run"});
    EXPECT_EQ(none.exitCode, 2);
}

}  // namespace
