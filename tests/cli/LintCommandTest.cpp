// tvpolicy lint: one flaw per policy of the table, found with its line; the examples are clean.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

std::string inSection(const std::string& body, const std::string& attributes = "primary=\"true\"")
{
    return "<policy name=\"p\">\n<section name=\"s\" " + attributes + ">\n" + body + "\n</section>\n</policy>\n";
}

struct LintCase {
    std::string title;
    std::string policy;
    std::string kind;     // the one finding's kind
    unsigned line;        // and its line
    std::string message;  // a part of its message
};

class LintFlawTest : public testing::TestWithParam<LintCase> {};

TEST_P(LintFlawTest, FindsTheFlawAtItsLine)
{
    const LintCase& c = GetParam();
    testing_support::TempDir dir;
    auto path = dir.write("p.xml", c.policy);
    auto result = runCli({"lint", path.string(), "--json"});
    EXPECT_EQ(result.exitCode, 1) << result.out << result.err;
    nlohmann::json report = nlohmann::json::parse(result.out);
    ASSERT_EQ(report["findings"].size(), 1u) << report.dump(2);
    const auto& finding = report["findings"][0];
    EXPECT_EQ(finding["kind"], c.kind);
    EXPECT_EQ(finding["line"], c.line);
    EXPECT_NE(finding["message"].get<std::string>().find(c.message), std::string::npos) << finding["message"];
    auto text = runCli({"lint", path.string()});
    EXPECT_NE(text.out.find(path.string() + ":" + (c.line > 0 ? std::to_string(c.line) + ":" : "") + " "),
              std::string::npos)
        << text.out;
}

std::string manySections(unsigned count)
{
    std::string policy = "<policy name=\"big\">\n";
    for (unsigned i = 0; i < count; ++i) {
        policy += "<section name=\"s" + std::to_string(i) + "\" primary=\"true\"><true/></section>\n";
    }
    return policy + "</policy>\n";
}

INSTANTIATE_TEST_SUITE_P(
    Policies, LintFlawTest,
    testing::Values(
        LintCase{"UnknownKind", inSection("<file fileName=\"passwd\"/>"), "unknown-element", 3, "<file>"},
        LintCase{"UnknownAttribute", inSection("<ProcessExists procname=\"sshd\"/>"), "unknown-attribute", 3,
                 "'procname'"},
        LintCase{"UnknownOperation",
                 inSection("<VersionFromScript script=\"echo 1\" required=\"1\" operation=\"ge\"/>"), "check-attribute",
                 3, "operation 'ge' is not gt, gte, eq, lte or lt"},
        LintCase{"DottedVersionWithoutDelim", inSection("<VersionFromScript script=\"echo 1.2\" required=\"1.10\"/>"),
                 "check-attribute", 3, "compared as the single number 1"},
        LintCase{"WordThatIsNotANumber",
                 inSection("<VersionFromReceipt pkg=\"A.pkg\" required=\"2.beta\" delim=\".\"/>"), "check-attribute", 3,
                 "'beta', compared as 0"},
        LintCase{"OSVersionPartMissing", inSection("<MacOSXVersion major=\"10\" minor=\"6\"/>"), "check-attribute", 3,
                 "micro '' is empty"},
        LintCase{"BadDate", inSection("<File fileName=\"passwd\" startPath=\"/etc\" lastModified=\"June 2024\"/>"),
                 "check-attribute", 3, "lastModified 'June 2024'"},
        LintCase{"SecondaryWithoutPrimary",
                 "<policy name=\"p\">\n<section name=\"lonely\" group=\"g\"><true/></section>\n</policy>\n",
                 "never-runs", 2, "group 'g', which has no primary here"},
        LintCase{"StandAloneNotPrimary", "<policy name=\"p\">\n<section name=\"idle\"><true/></section>\n</policy>\n",
                 "never-runs", 2, "neither primary nor in a group nor custom"},
        LintCase{
            "OnlyOptionWithGroups",
            "<policy name=\"p\">\n<option name=\"o\" type=\"ONLY\">\n<section name=\"a\" group=\"g\" primary=\"true\">"
            "<true/></section>\n</option>\n</policy>\n",
            "only-with-groups", 2, "type ONLY and has groups"},
        LintCase{"TooManySections", manySections(1000), "too-many-sections", 0, "1000 sections"},
        LintCase{"MisspeltTopLevelSection",
                 "<policy name=\"p\">\n<section name=\"s\" primary=\"true\"><true/></section>\n<Sectoin name=\"t\"/>\n"
                 "</policy>\n",
                 "unknown-element", 3,
                 "<Sectoin> under <policy> is not an element the policy reader uses: it was passed "
                 "over, not evaluated (did you mean <section>?)"},
        LintCase{"FileExecute",
                 inSection("<File fileName=\"passwd\" startPath=\"/etc\" execute=\"true\" args=\"-v\"/>"),
                 "file-execute", 3, "execute is read but nothing is started"},
        LintCase{"StandAloneProhibited", inSection("<true/>", "primary=\"true\" prohibit=\"true\""),
                 "stand-alone-prohibited", 2, "fails the policy whatever its checks find"},
        LintCase{"StandAloneWarning", inSection("<true/>", "primary=\"true\" severity=\"warning\""),
                 "stand-alone-warning", 2, "it still fails the policy"},
        LintCase{"StandAloneSkip", inSection("<and skip=\"true\"><true/></and>"), "stand-alone-skip", 2,
                 "a skipped stand-alone section fails the policy"},
        LintCase{"NoSections", "<policy name=\"empty\"/>", "no-sections", 0, "no section"},
        LintCase{"PostureRequiredMissing", inSection("<true/>\n<FileContent path=\"/etc/hosts\"/>"), "check-attribute",
                 4, "the attribute pattern is missing"},
        LintCase{"ModeNotOctal", inSection("<FileMode path=\"/etc/shadow\" maxMode=\"0698\"/>"), "check-attribute", 3,
                 "maxMode is not an octal mode: 0698"},
        LintCase{"PatternDoesNotCompile", inSection("<FileContent path=\"/etc/hosts\" pattern=\"(a|b\"/>"),
                 "check-attribute", 3, "pattern does not compile: missing closing parenthesis"},
        LintCase{"PortOutOfRange", inSection("<not><PortListening port=\"70000\"/></not>"), "check-attribute", 3,
                 "port is not a number from 1 to 65535: 70000"},
        LintCase{"UnknownProtocol", inSection("<PortListening port=\"53\" protocol=\"sctp\"/>"), "check-attribute", 3,
                 "protocol is not tcp or udp: sctp"}),
    [](const testing::TestParamInfo<LintCase>& testCase) { return testCase.param.title; });

// An include is reported, and one that is not http(s) twice: it would end the run.
TEST(LintCommand, IncludesAreReportedNotFetched)
{
    testing_support::TempDir dir;
    auto path = dir.write("p.xml",
                          "<policy name=\"p\">\n<include id=\"remote\" url=\"http://127.0.0.1:9/s.xml\"/>\n"
                          "<include id=\"local\" url=\"file:///etc/passwd\"/>\n</policy>\n");
    auto result = runCli({"lint", path.string(), "--json"});
    EXPECT_EQ(result.exitCode, 1);
    std::vector<std::string> kinds;
    nlohmann::json report = nlohmann::json::parse(result.out);
    for (const auto& finding : report["findings"]) {
        kinds.push_back(finding["kind"]);
    }
    EXPECT_EQ(kinds, (std::vector<std::string>{"included-not-evaluated", "included-not-evaluated", "include-not-web"}));
}

TEST(LintCommand, ExamplesAreCleanAndScriptsAreShown)
{
    unsigned policies = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(TVPOLICY_SOURCE_DIR) + "/examples")) {
        std::string file = entry.path().string();
        if (entry.path().extension() != ".xml" ||
            testing_support::readFile(entry.path()).find("<policy") == std::string::npos) {
            continue;
        }
        ++policies;
        auto result = runCli({"lint", file, "--json"});
        nlohmann::json report = nlohmann::json::parse(result.out);
        // The non-compliant example shows on purpose what fails a policy whatever its checks find.
        for (const auto& finding : report["findings"]) {
            EXPECT_TRUE(entry.path().filename() == "noncompliant.xml" &&
                        finding["kind"].get<std::string>().rfind("stand-alone-", 0) == 0)
                << file << ": " << finding.dump();
        }
    }
    EXPECT_GE(policies, 5u);
    auto scripts = runCli({"lint", std::string(TVPOLICY_SOURCE_DIR) + "/examples/file-and-version-checks.xml"});
    EXPECT_NE(scripts.out.find(": note: section \"Kernel 3.2 or later\" runs the shell command: uname -r\n"),
              std::string::npos)
        << scripts.out;
}

TEST(LintCommand, UnreadablePolicyIsExitTwo)
{
    auto result = runCli({"lint", "/dev/null"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("tvpolicy lint: /dev/null: is empty"), std::string::npos) << result.err;
}

}  // namespace
