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

// What a reader does not read is warned about with its line, and the values it does read are
// still shown. The profile is found wherever it stands, as the status reader finds it.
struct UnreadCase {
    std::string title;
    std::string kind;
    std::string document;
    // Each expected in standard error, in this order: "line N: ..." starts a warning, any other
    // text is more of the one before.
    std::vector<std::string> warnings;
    std::vector<std::string> lines;  // each expected as a whole line of standard output
};

class ShowUnreadTest : public testing::TestWithParam<UnreadCase> {};

TEST_P(ShowUnreadTest, WarnsWithTheLine)
{
    testing_support::TempDir dir;
    auto result = runCli({"show", GetParam().kind, dir.write("d.xml", GetParam().document).string()});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::size_t at = 0;
    std::size_t expected = 0;
    for (const std::string& warning : GetParam().warnings) {
        bool starts = warning.rfind("line ", 0) == 0;
        expected += starts ? 1 : 0;
        std::size_t found = result.err.find(starts ? "tvpolicy show: warning: " + warning : warning, at);
        EXPECT_NE(found, std::string::npos) << warning << "\n" << result.err;
        at = found == std::string::npos ? at : found;
    }
    std::size_t count = 0;
    for (std::size_t i = result.err.find("warning:"); i != std::string::npos; i = result.err.find("warning:", i + 1)) {
        ++count;
    }
    EXPECT_EQ(count, expected) << result.err;
    for (const std::string& line : GetParam().lines) {
        EXPECT_NE(("\n" + result.out).find("\n" + line + "\n"), std::string::npos) << line << "\n" << result.out;
    }
}

const std::string agentNs = " xmlns=\"urn:torvane:agent:1\"";

INSTANTIATE_TEST_SUITE_P(
    Documents, ShowUnreadTest,
    testing::Values(
        UnreadCase{"CleanProfile",
                   "profile",
                   "<profile" + agentNs + ">\n<SSID>lab</SSID>\n<securityType>WPA2</securityType>\n</profile>",
                   {},
                   {"SSID: lab", "securityType: WPA2"}},
        UnreadCase{"ProfileInAStatusReply",
                   "profile",
                   "<agentStatus" + agentNs +
                       ">\n<status>NEEDS_SWIFTJOIN</status>\n<wrap>\n<profile>\n"
                       "<SSID>campus</SSID>\n</profile>\n</wrap>\n</agentStatus>",
                   {},
                   {"SSID: campus"}},
        UnreadCase{"MisspeltAndUnknownValues",
                   "profile",
                   "<profile" + agentNs +
                       ">\n<ssid>lab</ssid>\n<securityType>wpa2</securityType>\n"
                       "<configCipher>CCMP</configCipher>\n<validateServerCertWindows>yes</validateServerCertWindows>\n"
                       "</profile>",
                   {"line 2: <ssid> in <profile> at line 1 is not an element the profile reader reads: it was "
                    "passed over (did you mean <SSID>?)",
                    "line 3: <securityType> holds \"wpa2\", not a value the profile reader knows",
                    "line 4: <configCipher> holds \"CCMP\"", "line 5: <validateServerCertWindows> holds \"yes\""},
                   {"SSID: ", "securityType: OPEN", "configCipher: other", "validateServerCert: false"}},
        UnreadCase{"RepeatedAndSecondProfile",
                   "profile",
                   "<r" + agentNs +
                       ">\n<profile><SSID>a</SSID>\n<SSID>b</SSID></profile>\n"
                       "<profile><SSID>c</SSID></profile>\n</r>",
                   {"line 2: another <SSID>: the profile reader reads only the last one, at line 3",
                    "line 4: a second <profile>: only the first one, at line 2, is read"},
                   {"SSID: b"}},
        UnreadCase{"CleanConfigExample",
                   "config",
                   testing_support::readFile(examples + "agent-config.xml"),
                   {},
                   {"loginUrl: https://nac.example.net/agent/login"}},
        UnreadCase{"ConfigFlaws",
                   "config",
                   "<agentConfig" + agentNs +
                       ">\n<loginURL>https://x</loginURL>\n<showIntro>yes</showIntro>\n"
                       "<scanUrl>a</scanUrl>\n<scanUrl>b</scanUrl>\n<field name=\"u\"><lable>User</lable>"
                       "<type>text</type></field>\n<o:uid xmlns:o=\"urn:other\">1</o:uid>\n</agentConfig>",
                   {"line 2: <loginURL> is not an element the configuration reader reads: it was passed over (did "
                    "you mean <loginUrl>?)",
                    "line 3: <showIntro> holds \"yes\"", "read as false",
                    "line 5: another <scanUrl>: the configuration reader reads only the first one, at line 4",
                    "line 6: <lable> in <field> at line 6 is not an element", "line 6: <type> holds \"text\"",
                    "line 7: <uid> is not in the agent namespace urn:torvane:agent:1"},
                   {"loginUrl: ", "showIntro: false", "scanUrl: a", "fields[0].type: TEXT"}},
        UnreadCase{"ConfigWrapperIsHarmless",
                   "config",
                   "<agentConfig" + agentNs + ">\n<group><uid>7</uid></group>\n</agentConfig>",
                   {},
                   {"uid: 7"}},
        UnreadCase{"StatusFlaws",
                   "status",
                   "<agentStatus" + agentNs +
                       ">\n<status>success</status>\n<scanname>s</scanname>\n"
                       "<profile><SSID>x</SSID><wpa2/></profile>\n</agentStatus>",
                   {"line 2: <status> holds \"success\"", "read as ERROR",
                    "line 3: <scanname> is not an element the status reader reads: it was passed over (did you "
                    "mean <scanName>?)",
                    "line 4: <wpa2> in <profile> at line 4"},
                   {"status: ERROR", "profile.SSID: x"}}),
    [](const testing::TestParamInfo<UnreadCase>& testCase) { return testCase.param.title; });

}  // namespace
