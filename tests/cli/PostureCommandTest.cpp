// The posture checks through the program: listed by `tasks`, run against the described Debian
// server of the examples (where one changed fact fails exactly its section), and shown with
// what they found in every report.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fstream>
#include <functional>
#include <map>
#include <string>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;
using Json = nlohmann::json;

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";

TEST(PostureCommand, TasksListsEveryKindWithItsAttributes)
{
    auto result = runCli({"tasks", "--json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    Json kinds = Json::parse(result.out);
    std::map<std::string, Json> byElement;
    for (const auto& kind : kinds) {
        byElement[kind["element"]] = kind["attributes"];
    }
    EXPECT_EQ(byElement["PackageInstalled"], Json({"name", "required", "operation"}));
    EXPECT_EQ(byElement["FileMode"], Json({"path", "owner", "group", "maxMode"}));
    EXPECT_EQ(byElement["FirewallActive"], Json::array());
    EXPECT_EQ(kinds.back()["kind"], "KernelParameterTask");
}

// The example server's description with one fact replaced, its root folder kept.
std::string describedWith(const testing_support::TempDir& dir, const std::function<void(Json&)>& change)
{
    std::ifstream in(examples + "hosts/debian-12-server.json");
    Json host = Json::parse(in);
    host["root"] = examples + "hosts/" + host["root"].get<std::string>();
    change(host);
    return dir.write("host.json", host.dump()).string();
}

// The sections, at any depth, that did not pass, as "name: status"; and the exit status, which
// is 1 exactly when a top-level item did not pass.
std::vector<std::string> sectionsNotPassed(const std::string& hostFile)
{
    auto result = runCli({"run", "--json", examples + "linux-baseline.xml", "--host", hostFile});
    Json report = Json::parse(result.out);
    std::vector<std::string> notPassed;
    bool topLevelFailed = false;
    std::function<void(const Json&, bool)> visit = [&](const Json& item, bool topLevel) {
        if (item["status"] != 1) {
            notPassed.push_back(item["name"].get<std::string>() + ": " + item["statusText"].get<std::string>());
            topLevelFailed = topLevelFailed || topLevel;
        }
        for (const auto& child : item.value("sections", Json::array())) {
            visit(child, false);
        }
    };
    for (const auto& item : report["items"]) {
        visit(item, true);
    }
    EXPECT_EQ(result.exitCode, topLevelFailed ? 1 : 0) << result.err;
    return notPassed;
}

TEST(PostureCommand, BaselinePassesOnTheDescribedServerAndEachFactFailsItsSection)
{
    testing_support::TempDir dir;
    auto examplesHost =
        runCli({"run", examples + "linux-baseline.xml", "--host", examples + "hosts/debian-12-server.json"});
    EXPECT_EQ(examplesHost.exitCode, 0) << examplesHost.out << examplesHost.err;
    EXPECT_EQ(sectionsNotPassed(describedWith(dir, [](Json&) {})), std::vector<std::string>{});
    struct Change {
        const char* section;
        std::function<void(Json&)> change;
    } changes[] = {
        {"SSH server installed: failed", [](Json& h) { h["packages"][0]["version"] = "1:8.4p1-5"; }},
        {"SSH server running: failed", [](Json& h) { h["services"][0]["enabled"] = false; }},
        {"No telnet server: failed",
         [](Json& h) {
             h["packages"].push_back({{"name", "telnetd"}, {"version", "0.17-42"}});
         }},
        {"No telnet server: failed",
         [](Json& h) {
             h["listening"].push_back({{"port", 23}});
         }},
        {"Password hashes protected: failed", [](Json& h) { h["fileModes"]["/etc/shadow"]["mode"] = "0644"; }},
        {"Firewall active: failed", [](Json& h) { h["firewall"] = false; }},
        {"IP forwarding off: failed", [](Json& h) { h["kernelParameters"]["net.ipv4.ip_forward"] = "1"; }},
        // A warning inside an option: the policy still passes.
        {"Root file system encrypted: warning", [](Json& h) { h["encryptedMounts"] = Json::array(); }},
    };
    for (const auto& change : changes) {
        EXPECT_EQ(sectionsNotPassed(describedWith(dir, change.change)), std::vector<std::string>{change.section})
            << change.section;
    }
}

TEST(PostureCommand, ReportsShowWhatNestedChecksFound)
{
    testing_support::TempDir dir;
    std::string host = describedWith(dir, [](Json& h) { h["listening"].push_back({{"port", 23}}); });
    auto json = runCli({"run", "--json", examples + "linux-baseline.xml", "--host", host});
    Json report = Json::parse(json.out);
    std::string found;
    for (const auto& item : report["items"]) {
        if (item["name"] == "No telnet server") {
            found = item["tasks"][1]["terms"][0].value("found", "");
        }
    }
    EXPECT_EQ(found, "tcp port 23 is listening (IPv4)");
    std::string junit = (dir.path() / "r.xml").string();
    std::string html = (dir.path() / "r.html").string();
    auto text = runCli({"run", examples + "linux-baseline.xml", "--host", host, "--junit", junit, "--report", html});
    EXPECT_NE(text.out.find("PortListening port=\"23\" - tcp port 23 is listening (IPv4)"), std::string::npos)
        << text.out;
    EXPECT_NE(text.out.find("PackageInstalled name=\"openssh-server\" required=\"1:9.2\": passed - openssh-server "
                            "1:9.2p1-2+deb12u3 is installed (gte 1:9.2)"),
              std::string::npos)
        << text.out;
    EXPECT_NE(testing_support::readFile(junit).find("tcp port 23 is listening (IPv4)"), std::string::npos);
    EXPECT_NE(testing_support::readFile(html).find("tcp port 23 is listening (IPv4)"), std::string::npos);
}

TEST(PostureCommand, MalformedPostureFactsAreRefusedByName)
{
    testing_support::TempDir dir;
    struct Row {
        std::function<void(Json&)> change;
        const char* message;
    } rows[] = {
        {[](Json& h) { h["listening"][0]["port"] = 0; }, "field 'listening[0].port' must be a number from 1 to 65535"},
        {[](Json& h) { h["services"][0]["active"] = "yes"; }, "field 'services[0].active' must be true or false"},
        {[](Json& h) { h["fileModes"]["/etc/shadow"]["mode"] = "rw"; },
         "field 'fileModes./etc/shadow.mode' must be an octal mode"},
        {[](Json& h) { h["firewall"] = "on"; }, "field 'firewall' must be true or false"},
    };
    for (const auto& row : rows) {
        auto result = runCli({"run", examples + "linux-baseline.xml", "--host", describedWith(dir, row.change)});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_NE(result.err.find(row.message), std::string::npos) << result.err;
    }
}

}  // namespace
