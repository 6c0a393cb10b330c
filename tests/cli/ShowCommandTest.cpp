#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/RunCli.h"
#include "support/TempDir.h"

using testing_support::runCli;

namespace {

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";

struct ShowCase {
    std::vector<std::string> args;
    int exitCode;
    std::vector<std::string> lines;  // each expected as a whole line of standard output
};

class ShowTest : public testing::TestWithParam<ShowCase> {};

TEST_P(ShowTest, PrintsTheDocumentsValues)
{
    auto result = runCli(GetParam().args);
    EXPECT_EQ(result.exitCode, GetParam().exitCode) << result.err;
    for (const std::string& line : GetParam().lines) {
        EXPECT_NE(("\n" + result.out).find("\n" + line + "\n"), std::string::npos) << line << "\n" << result.out;
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, ShowTest, testing::Values(
    ShowCase{{"show", "config", examples + "agent-config.xml"}, 0,
             {"loginUrl: https://nac.example.net/agent/login", "showFinished: false", "showIntro: true",
              "sjLoginMessage: Please Re-Enter Your Credentials", "fields[1].type: PASSWORD",
              "fields[2].type: SELECT", "fields[2].options[2].value: guest"}},
    ShowCase{{"show", "status", examples + "status-wpa2-enterprise.xml"}, 0,
             {"status: NEEDS_SWIFTJOIN", "profile.securityType: WPA2_ENTERPRISE", "profile.EAPConfig: PEAP",
              "profile.configCipher: AES", "profile.validateServerCert: true"}},
    // A document that cannot be read shows the defaults; a missing file is a usage error.
    ShowCase{{"show", "config", "/dev/null"}, 0, {"showIntro: true", "loginUrl: "}},
    ShowCase{{"show", "status", "/dev/null"}, 0, {"status: ERROR", "profile: null"}},
    ShowCase{{"show", "profile", "/dev/null"}, 2, {}},
    ShowCase{{"show", "config", "/no/such/file.xml"}, 2, {}},
    ShowCase{{"show", "policy", examples + "agent-config.xml"}, 2, {}}));

TEST(ShowCommand, JsonIsOneCleanObjectAndHidesPassPhrases)
{
    testing_support::TempDir dir;
    auto file = dir.write("profile.xml", "<profile xmlns='urn:torvane:agent:1'><SSID>lab</SSID>"
                                         "<password>s3cret</password><broken></profile>");
    auto hidden = runCli({"show", "profile", file.string(), "--json"});
    EXPECT_EQ(hidden.exitCode, 0);
    auto json = nlohmann::json::parse(hidden.out);  // the parse error is logged, not printed
    EXPECT_EQ(json["SSID"], "lab");
    EXPECT_EQ(json["password"].get<std::string>().find("s3cret"), std::string::npos);

    auto revealed = runCli({"show", "profile", file.string(), "--json", "--reveal"});
    EXPECT_EQ(nlohmann::json::parse(revealed.out)["password"], "s3cret");
}

}  // namespace
