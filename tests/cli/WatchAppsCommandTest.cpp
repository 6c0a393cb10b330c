// tvpolicy watch and tvpolicy apps end to end: address changes in a network namespace of the
// test's own, signals that end the watch, and the package list against dpkg-query.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>

#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/DpkgQuery.h"
#include "support/NetNamespace.h"
#include "support/RunCli.h"

namespace {

using testing_support::ChildProcess;
using testing_support::CliResult;
using testing_support::runCli;
using Json = nlohmann::json;

class WatchInNamespace : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        if (!ns.valid()) {
            GTEST_SKIP() << ns.skipReason();
        }
        ASSERT_TRUE(ns.exec("ip link set lo up && ip link add va type veth peer name vb && ip link set va up"));
    }

    std::unique_ptr<ChildProcess> watch(const std::vector<std::string>& args)
    {
        std::vector<std::string> argv = {"ip",         "netns", "exec",
                                         ns.name(),    "env",   "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus",
                                         TVPOLICY_CLI, "watch"};
        argv.insert(argv.end(), args.begin(), args.end());
        return std::make_unique<ChildProcess>(argv, true);
    }

    testing_support::NetNamespace ns;
};

TEST_P(WatchInNamespace, AddressLineWithinASecondThenCleanExitOnSignal)
{
    auto program = watch({"--ip", "--json"});
    std::optional<std::string> line;
    // The program subscribes shortly after it starts; addresses are added until it reports one.
    std::string address;
    for (int i = 1; i <= 10 && !line; ++i) {
        address = "10.55.0." + std::to_string(i);
        ASSERT_TRUE(ns.exec("ip addr add " + address + "/32 dev va"));
        line = program->readLine(std::chrono::seconds(1));
    }
    ASSERT_TRUE(line) << "no line for an added address";
    Json change = Json::parse(*line);
    EXPECT_EQ(change["kind"], "ip");
    EXPECT_TRUE(std::regex_match(change["time"].get<std::string>(), std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)")));
    std::vector<std::string> payload = change["payload"];
    EXPECT_NE(std::find(payload.begin(), payload.end(), address), payload.end()) << *line;
    EXPECT_NE(std::find(payload.begin(), payload.end(), "127.0.0.1"), payload.end()) << *line;

    EXPECT_EQ(program->signalAndWait(GetParam(), std::chrono::seconds(3)), std::optional<int>(0));
}

INSTANTIATE_TEST_SUITE_P(Signals, WatchInNamespace, testing::Values(SIGTERM, SIGINT));

TEST(WatchCommand, PlainLinesAndRefusals)
{
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string errPart;
    };
    for (const Case& c : std::vector<Case>{
             {{"watch", "--period", "x"}, 2, "--period"},
             {{"watch", "--ip", "--bogus"}, 2, "--bogus"},
         }) {
        CliResult result = runCli(c.args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args.back();
        EXPECT_NE(result.err.find(c.errPart), std::string::npos) << result.err;
    }
}

TEST(WatchCommand, PowerWithoutLogindFails)
{
    CliResult result = testing_support::runProgram(
        {"env", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus", TVPOLICY_CLI, "watch", "--power"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("systemd-logind cannot be reached"), std::string::npos) << result.err;
    EXPECT_EQ(result.out, "");
}

TEST(AppsCommand, JsonXmlAndTableListTheDpkgPackages)
{
    if (!std::filesystem::exists("/var/lib/dpkg/status")) {
        GTEST_SKIP() << "this machine has no dpkg database";
    }
    std::map<std::string, std::string> expected = testing_support::installedByDpkgQuery();
    ASSERT_FALSE(expected.empty());

    CliResult json = runCli({"apps", "--json"});
    ASSERT_EQ(json.exitCode, 0) << json.err;
    std::map<std::string, std::string> listed;
    for (const Json& app : Json::parse(json.out)) {
        listed[app["name"]] = app["version"];
        EXPECT_EQ(app["vendor"], "");
    }
    EXPECT_EQ(listed, expected);

    CliResult xml = runCli({"apps", "--xml"});
    ASSERT_EQ(xml.exitCode, 0) << xml.err;
    const auto& [name, version] = *expected.begin();
    std::string fragment = "<app><name><![CDATA[" + name + "]]></name><version><![CDATA[" + version +
                           "]]></version><vendor></vendor></app>\n";
    EXPECT_NE(xml.out.find(fragment), std::string::npos);
    EXPECT_EQ(static_cast<std::size_t>(std::count(xml.out.begin(), xml.out.end(), '\n')), expected.size());

    CliResult table = runCli({"apps"});
    ASSERT_EQ(table.exitCode, 0) << table.err;
    EXPECT_EQ(table.out.rfind("NAME", 0), 0u);
    std::istringstream rows(table.out);
    std::size_t found = 0;
    for (std::string row; std::getline(rows, row);) {
        if (row.rfind(name + " ", 0) == 0) {
            ++found;
            EXPECT_EQ(row.substr(row.find_last_of(' ') + 1), version) << row;
        }
    }
    EXPECT_EQ(found, 1u) << name;
    EXPECT_NE(runCli({"apps", "--xml", "--json"}).exitCode, 0);
}

}  // namespace
