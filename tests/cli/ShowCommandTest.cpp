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

INSTANTIATE_TEST_SUITE_P(
    Documents, ShowTest,
    testing::Values(ShowCase{{"show", "config", examples + "agent-config.xml"},
                             0,
                             {"loginUrl: https://nac.example.net/agent/login", "showFinished: false", "showIntro: true",
                              "sjLoginMessage: Please Re-Enter Your Credentials", "fields[1].type: PASSWORD",
                              "fields[2].type: SELECT", "fields[2].options[2].value: guest"}},
                    ShowCase{
                        {"show", "status", examples + "status-wpa2-enterprise.xml"},
                        0,
                        {"status: NEEDS_SWIFTJOIN", "profile.securityType: WPA2_ENTERPRISE", "profile.EAPConfig: PEAP",
                         "profile.configCipher: AES", "profile.validateServerCert: true"}},
                    // A document that cannot be read, or one of another kind, is refused: defaults would mislead.
                    ShowCase{{"show", "config", "/dev/null"}, 2, {}}, ShowCase{{"show", "status", "/dev/null"}, 2, {}},
                    ShowCase{{"show", "profile", "/dev/null"}, 2, {}},
                    ShowCase{{"show", "config", examples + "monitors.xml"}, 2, {}},
                    ShowCase{{"show", "status", examples + "compliant.xml"}, 2, {}},
                    ShowCase{{"show", "config", "/no/such/file.xml"}, 2, {}},
                    ShowCase{{"show", "policy", examples + "agent-config.xml"}, 2, {}}));

struct RefusedCase {
    std::string title;
    std::string kind;
    std::string document;
    std::string inErr;
};

class ShowRefusesTest : public testing::TestWithParam<RefusedCase> {};

TEST_P(ShowRefusesTest, SaysWhyWithStatusTwo)
{
    testing_support::TempDir dir;
    auto result = runCli({"show", GetParam().kind, dir.write("d.xml", GetParam().document).string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find(GetParam().inErr), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Documents, ShowRefusesTest,
    testing::Values(
        RefusedCase{"Empty", "config", "", "d.xml: is empty"},
        RefusedCase{"Binary", "status", std::string("\0\x01\x02<\xff>", 6), "d.xml: not XML: "},
        RefusedCase{"CutShort", "config", "<agentConfig xmlns=\"urn:torvane:agent:1\"><loginUrl>x", "not XML: "},
        RefusedCase{
            "OtherKind", "config", "<html><body/></html>",
            "is not an agent document: no element is in the namespace urn:torvane:agent:1 (its root element is <html>)"},
        RefusedCase{"OtherNamespace", "status",
                    "<agentStatus xmlns=\"urn:other\"><status>SUCCESS</status></agentStatus>",
                    "is not an agent document"}),
    [](const testing::TestParamInfo<RefusedCase>& testCase) { return testCase.param.title; });

// "-" reads the document from standard input.
TEST(ShowCommand, ReadsStandardInput)
{
    auto result = runCli({"show", "status", "-"},
                         "<agentStatus xmlns=\"urn:torvane:agent:1\"><status>SUCCESS</status></agentStatus>");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_NE(result.out.find("status: SUCCESS\n"), std::string::npos) << result.out;
}

TEST(ShowCommand, JsonIsOneCleanObjectAndHidesPassPhrases)
{
    testing_support::TempDir dir;
    auto file = dir.write("profile.xml",
                          "<profile xmlns='urn:torvane:agent:1'><SSID>lab</SSID>"
                          "<password>s3cret</password></profile>");
    auto hidden = runCli({"-v", "show", "profile", file.string(), "--json"});
    EXPECT_EQ(hidden.exitCode, 0);
    auto json = nlohmann::json::parse(hidden.out);  // the library's log goes to standard error only
    EXPECT_EQ(json["SSID"], "lab");
    EXPECT_EQ(json["password"].get<std::string>().find("s3cret"), std::string::npos);

    auto revealed = runCli({"show", "profile", file.string(), "--json", "--reveal"});
    EXPECT_EQ(nlohmann::json::parse(revealed.out)["password"], "s3cret");
}

}  // namespace
