// tvpolicy run --host: a policy evaluated against a described host touches nothing of this one.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

std::string examples(const std::string& name) { return std::string(TVPOLICY_SOURCE_DIR) + "/examples/" + name; }

struct HostCase {
    std::string policy;
    std::string host;
    int exitCode;
    std::string verdict;
};

class DescribedHostExampleTest : public testing::TestWithParam<HostCase> {};

TEST_P(DescribedHostExampleTest, GivesTheDescribedHostsVerdict)
{
    auto result = runCli({"run", examples(GetParam().policy), "--host", examples("hosts/" + GetParam().host), "-q"});
    EXPECT_EQ(result.exitCode, GetParam().exitCode) << result.out << result.err;
    EXPECT_NE(result.out.find(GetParam().verdict), std::string::npos) << result.out;
}

INSTANTIATE_TEST_SUITE_P(Examples, DescribedHostExampleTest,
                         testing::Values(HostCase{"os-and-processes.xml", "debian-12.json", 0,
                                                  "PASS (4 passed, 0 failed, 0 warning, 0 skipped of 4 sections)"},
                                         HostCase{"os-and-processes.xml", "mac-10.4.11.json", 1,
                                                  "FAIL (0 passed, 4 failed, 0 warning, 0 skipped of 4 sections)"},
                                         HostCase{"compliant.xml", "debian-12.json", 0, "PASS (3 passed"},
                                         HostCase{"compliant.xml", "mac-10.4.11.json", 1, "FAIL (1 passed, 2 failed"}));

// Scripts are answered from the description and file searches stay inside its root: the
// command below would leave a mark if it ran, and the file exists only in the described root.
TEST(DescribedHost, NothingOfThisMachineIsRunOrSearched)
{
    testing_support::TempDir dir;
    auto mark = dir.path() / "ran";
    dir.write("root/opt/agent/agent.conf", "x");
    std::string script = "touch " + mark.string() + "; echo 9.9";
    nlohmann::json host = {{"os", {{"name", "Described"}, {"version", "1"}}},
                           {"hostName", "described.example.test"},
                           {"commands", {{script, "2.5\n"}}},
                           {"root", "root"}};
    auto hostFile = dir.write("host.json", host.dump());
    auto policy = dir.write("p.xml",
                            "<policy name=\"p\"><section name=\"s\" primary=\"true\">"
                            "<VersionFromScript script=\"" +
                                script +
                                "\" required=\"2.5\" delim=\".\"/>"
                                "<File fileName=\"agent.conf\"/>"
                                "<File fileName=\"passwd\" startPath=\"/etc\"/></section></policy>");
    auto result = runCli({"run", policy.string(), "--host", hostFile.string(), "--json", "-q"});
    EXPECT_FALSE(std::filesystem::exists(mark)) << "the script ran on this machine";
    nlohmann::json report = nlohmann::json::parse(result.out);
    const auto& tasks = report["items"][0]["tasks"];
    EXPECT_EQ(tasks[0]["passed"], true);
    EXPECT_EQ(tasks[0]["version"]["found"], "2.5");
    EXPECT_EQ(tasks[1]["passed"], true);   // found under the described root, searched from its top
    EXPECT_EQ(tasks[2]["passed"], false);  // this machine's /etc/passwd is not the described host's
    EXPECT_EQ(report["run"]["hostName"], "described");
    EXPECT_EQ(report["run"]["osVersion"], "1");
}

struct MalformedCase {
    std::string title;
    std::string description;
    std::string inErr;
};

class MalformedHostTest : public testing::TestWithParam<MalformedCase> {};

TEST_P(MalformedHostTest, NamesTheFieldWithStatusTwo)
{
    testing_support::TempDir dir;
    auto host = dir.write("host.json", GetParam().description);
    auto result = runCli({"run", examples("compliant.xml"), "--host", host.string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find(GetParam().inErr), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Descriptions, MalformedHostTest,
    testing::Values(
        MalformedCase{"NotJson", "{os:", "not a host description"},
        MalformedCase{"NoOs", "{}", "field 'os' is missing"},
        MalformedCase{"NameNotText", R"({"os": {"name": 12, "version": "1"}})", "field 'os.name' must be a string"},
        MalformedCase{"UnknownField", R"({"os": {"name": "x"}, "proceses": []})", "unknown field 'proceses'"},
        MalformedCase{"ProcessWithoutName", R"({"os": {}, "processes": [{"pid": 1}]})",
                      "field 'processes[0].name' is missing"},
        MalformedCase{"PidNotANumber", R"({"os": {}, "processes": [{"name": "a", "pid": "1"}]})",
                      "'processes[0].pid' must be an integer"},
        MalformedCase{"RootMissing", R"({"os": {}, "root": "no-such-folder"})", "field 'root': "},
        MalformedCase{"CommandsNotAnObject", R"({"os": {}, "commands": ["ls"]})",
                      "field 'commands' must be an object"}),
    [](const testing::TestParamInfo<MalformedCase>& testCase) { return testCase.param.title; });

}  // namespace
