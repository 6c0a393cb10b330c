// What `tvpolicy run` says about documents it cannot or does not fully evaluate: no PASS
// without saying so, the cause of every refusal, and exit statuses a program can trust.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <string>
#include <vector>

#include <unistd.h>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;
using testing_support::runProgram;

std::string example(const std::string& name) { return std::string(TVPOLICY_SOURCE_DIR) + "/examples/" + name; }

std::string policyOf(const std::string& sectionBody, const std::string& head = "")
{
    return "<policy name=\"p\">\n" + head + "<section name=\"s\" primary=\"true\">\n" + sectionBody +
           "</section>\n</policy>\n";
}

const std::string unableToRead = "tvpolicy run: Unable to read policy.\n";

// The policy to run: `content` written to policy.xml, or `path` ("DIR": the temporary folder).
std::string inputPath(testing_support::TempDir& dir, const std::string& content, const std::string& path)
{
    return path == "DIR" ? dir.path().string() : path.empty() ? dir.write("policy.xml", content).string() : path;
}

struct FlawedCase {
    std::string title;
    std::string content;             // written to policy.xml unless `path` is given
    std::string path;                // a path to run instead ("DIR" for the temporary folder)
    std::vector<std::string> extra;  // more arguments
    int exitCode;
    std::vector<std::string> inErr;  // each must appear on standard error
};

class FlawedInputTest : public testing::TestWithParam<FlawedCase> {};

TEST_P(FlawedInputTest, RefusesWithTheCauseAndTheDocumentedStatus)
{
    const FlawedCase& c = GetParam();
    testing_support::TempDir dir;
    std::string path = inputPath(dir, c.content, c.path);
    std::vector<std::string> args{"run", path, "-q"};
    args.insert(args.end(), c.extra.begin(), c.extra.end());
    auto result = runCli(args);
    EXPECT_EQ(result.exitCode, c.exitCode) << result.out << result.err;
    EXPECT_EQ(result.out.find("PASS"), std::string::npos) << result.out;
    // A local document gets its cause, never the advice about network settings.
    EXPECT_EQ(result.err.find("personal firewall"), std::string::npos) << result.err;
    for (const std::string& text : c.inErr) {
        EXPECT_NE(result.err.find(text), std::string::npos) << "missing: " << text << "\nin: " << result.err;
    }
}

std::string monitorDocument() { return "<monitors><Monitor name=\"m\" period=\"5\"><true/></Monitor></monitors>"; }

INSTANTIATE_TEST_SUITE_P(
    Inputs, FlawedInputTest,
    testing::Values(
        FlawedCase{"HtmlPage",
                   "<html><body><p>not a policy</p></body></html>",
                   "",
                   {},
                   2,
                   {"is not a policy: its root element is <html>, a policy's is <policy>"}},
        FlawedCase{"MonitorDocument", monitorDocument(), "", {}, 2, {"its root element is <monitors>"}},
        FlawedCase{
            "ConfigurationDocument", "", example("agent-config.xml"), {}, 2, {"its root element is <agentConfig>"}},
        FlawedCase{"EmptyFile", "", "", {}, 2, {unableToRead, "policy.xml: is empty\n"}},
        FlawedCase{"WhiteSpace", " \n\t\n", "", {}, 2, {"policy.xml: holds only white space"}},
        FlawedCase{"DevNull", "", "/dev/null", {}, 2, {unableToRead, "/dev/null: is empty\n"}},
        FlawedCase{"Directory", "", "DIR", {}, 2, {unableToRead, ": is a directory\n"}},
        FlawedCase{"BinaryData",
                   std::string("\x7f"
                               "ELF\x02\x01\x01\0\0<\xff\xfe>\x80",
                               14),
                   "",
                   {},
                   2,
                   {unableToRead, "policy.xml: not XML: ", " at line 1, column "}},
        FlawedCase{"OneLineCutShort",
                   "<policy name=\"p\"><section name=\"s\" primary=\"true\"><true/>",
                   "",
                   {},
                   2,
                   {unableToRead, "not XML: "}},
        FlawedCase{"LaterLineCutShort",
                   "<policy name=\"p\">\n<section name=\"s\">\n</policy>",
                   "",
                   {},
                   2,
                   {"tvpolicy run: A configuration error has occurred at line: 3\n", "not XML: ", "at line 3, column"}},
        FlawedCase{"NestedTooDeep",
                   "<policy>\n<section name=\"s\">\n" + std::string(4000, ' ') +
                       [] {
                           std::string deep;
                           for (int i = 0; i < 2000; ++i)
                               deep += "<and>";
                           return deep;
                       }() +
                       "</section></policy>",
                   "",
                   {},
                   2,
                   {"A configuration error has occurred at line: 3", "nested deeper than 1000 levels"}},
        FlawedCase{"LargerThanTheCap",
                   std::string(1100000, ' ') + "<policy/>",
                   "",
                   {"--max-size", "1"},
                   2,
                   {"larger than the limit of 1 MB (--max-size)"}},
        FlawedCase{
            "Missing", "", "/nonexistent/policy.xml", {}, 2, {"cannot read '/nonexistent/policy.xml': No such file"}},
        FlawedCase{"TypoStrict",
                   policyOf("<file fileName=\"passwd\" startPath=\"/etc\"/>\n"),
                   "",
                   {"--strict"},
                   2,
                   {"line 3: <file> in section \"s\" names no check kind", "--strict"}},
        FlawedCase{"UnknownAttributeStrict",
                   policyOf("<File filename=\"passwd\" startPath=\"/etc\"/>\n"),
                   "",
                   {"--strict"},
                   2,
                   {"line 3: attribute 'filename' of <File> in section \"s\" is not one that File reads"}},
        FlawedCase{"NoSectionsStrict", "<policy name=\"p\"/>", "", {"--strict"}, 2, {"the policy holds no section"}},
        FlawedCase{"IncludeUnreachable",
                   "<policy name=\"p\">\n<include id=\"remote\" url=\"http://127.0.0.1:9/section.xml\"/>\n</policy>\n",
                   "",
                   {},
                   3,
                   {"cannot read the included section at http://127.0.0.1:9/section.xml: "}},
        FlawedCase{"IncludeNotWeb",
                   "<policy name=\"p\">\n<include id=\"local\" url=\"file:///etc/passwd\"/>\n</policy>\n",
                   "",
                   {},
                   3,
                   {"cannot read the included section at file:///etc/passwd: only http and https addresses are read"}}),
    [](const testing::TestParamInfo<FlawedCase>& testCase) { return testCase.param.title; });

// Without --strict the run goes on, and every way of saying the result says what was not evaluated.
// An unreadable local policy: standard error gives the cause first, then the library's message
// without its network advice; JSON results carry the cause and, apart, the library's own message
// as it gave it (null when the library never read the document).
struct UnreadableCase {
    std::string title;
    std::string content;         // written to policy.xml unless `path` is given
    std::string path;            // "DIR": the temporary folder
    std::string cause;           // how the first line of standard error goes on after "tvpolicy run: PATH"
    std::string libraryMessage;  // how JSON's libraryMessage starts; empty: null
    bool advice;                 // the library's message holds its network advice
};

class UnreadablePolicyTest : public testing::TestWithParam<UnreadableCase> {};

TEST_P(UnreadablePolicyTest, CauseFirstAndTheLibrarysMessageApart)
{
    const UnreadableCase& c = GetParam();
    testing_support::TempDir dir;
    std::string path = inputPath(dir, c.content, c.path);
    auto text = runCli({"run", path, "-q"});
    EXPECT_EQ(text.exitCode, 2);
    const std::string firstLine = text.err.substr(0, text.err.find('\n'));
    EXPECT_EQ(firstLine.rfind("tvpolicy run: " + path + c.cause, 0), 0u) << text.err;
    EXPECT_EQ(text.err.find("personal firewall"), std::string::npos) << text.err;
    EXPECT_EQ(text.out, "");

    for (const std::vector<std::string>& asJson : {std::vector<std::string>{"--json"}, {"--format", "json"}}) {
        std::vector<std::string> args{"run", path, "-q"};
        args.insert(args.end(), asJson.begin(), asJson.end());
        auto json = runCli(args);
        EXPECT_EQ(json.exitCode, 2);
        EXPECT_EQ(json.err.find("personal firewall"), std::string::npos) << json.err;
        auto shown = nlohmann::json::parse(json.out);
        EXPECT_EQ(shown["result"], "ERROR");
        EXPECT_EQ(shown["exitStatus"], 2);
        EXPECT_EQ("tvpolicy run: " + shown["error"].get<std::string>(), firstLine);
        if (c.libraryMessage.empty()) {
            EXPECT_TRUE(shown["libraryMessage"].is_null()) << shown;
        } else {
            std::string message = shown["libraryMessage"].get<std::string>();
            EXPECT_EQ(message.rfind(c.libraryMessage, 0), 0u) << message;
            EXPECT_EQ(message.find("personal firewall") != std::string::npos, c.advice) << message;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, UnreadablePolicyTest,
    testing::Values(UnreadableCase{"Empty", "", "", ": is empty", "Unable to read policy.", true},
                    UnreadableCase{"Directory", "", "DIR", ": is a directory", "Unable to read policy.", true},
                    UnreadableCase{"CutShort", "<policy name=\"p\">\n<section name=\"s\">\n</policy>", "",
                                   ": not XML: ", "A configuration error has occurred at line: 3", false},
                    UnreadableCase{"NotAPolicy", "<html/>", "",
                                   " is not a policy: its root element is <html>, a policy's is <policy>", "", false}),
    [](const testing::TestParamInfo<UnreadableCase>& testCase) { return testCase.param.title; });

TEST(RunTruth, UnevaluatedElementsAreNamedInEveryOutput)
{
    testing_support::TempDir dir;
    auto path = dir.write("typo.xml",
                          policyOf("<file fileName=\"passwd\" startPath=\"/etc\"/>\n"
                                   "<FirewallEnabled/>\n<File fileName=\"passwd\" startPath=\"/etc\" age=\"3\"/>\n"));
    auto text = runCli({"run", path.string(), "-q"});
    EXPECT_EQ(text.exitCode, 0) << text.err;
    EXPECT_EQ(
        text.err,
        "tvpolicy run: warning: line 3: <file> in section \"s\" names no check kind: it was passed over, not evaluated "
        "(see tvpolicy tasks)\n"
        "tvpolicy run: warning: line 4: <FirewallEnabled> in section \"s\" names no check kind: it was passed over, "
        "not evaluated (see tvpolicy tasks)\n"
        "tvpolicy run: warning: line 5: attribute 'age' of <File> in section \"s\" is not one that File reads: it "
        "changes nothing (see tvpolicy tasks)\n");
    EXPECT_NE(text.out.find("PASS (1 passed, 0 failed, 0 warning, 0 skipped of 1 sections; 2 elements not evaluated; "
                            "1 attribute ignored)"),
              std::string::npos)
        << text.out;

    auto json = runCli({"run", path.string(), "--json", "-q"});
    nlohmann::json report = nlohmann::json::parse(json.out);
    ASSERT_EQ(report["warnings"].size(), 3u);
    EXPECT_EQ(report["warnings"][0]["kind"], "unknown-element");
    EXPECT_EQ(report["warnings"][0]["line"], 3);
    EXPECT_EQ(report["warnings"][2]["kind"], "unknown-attribute");
    EXPECT_EQ(report["warnings"][2]["section"], "s");
}

// Each check is shown as its element with its attributes; version checks with what they compared.
TEST(RunTruth, FailedChecksSayWhatTheyLookedFor)
{
    testing_support::TempDir dir;
    auto path =
        dir.write("checks.xml",
                  policyOf("<File fileName=\"no-such-file\" startPath=\"" + dir.path().string() +
                           "\"/>\n"
                           "<VersionFromScript script=\"echo 2.4.1\" required=\"3.0\" delim=\".\" operation=\"gte\"/>\n"
                           "<not><ProcessExists procName=\"no-such-process-xyz\"/></not>\n"));
    auto text = runCli({"run", path.string(), "-q"});
    EXPECT_EQ(text.exitCode, 1);
    for (
        const std::string& line :
        {"    File fileName=\"no-such-file\" startPath=\"" + dir.path().string() +
             "\": failed - FileTask/File Not Found\n",
         std::string(
             "    VersionFromScript script=\"echo 2.4.1\" required=\"3.0\" delim=\".\" operation=\"gte\": failed - "
             "found \"2.4.1\", required gte \"3.0\"\n"),
         std::string(
             "    not: passed - notTask/Process Not Running\n      ProcessExists procName=\"no-such-process-xyz\"\n")}) {
        EXPECT_NE(text.out.find(line), std::string::npos) << line << "\nin:\n" << text.out;
    }
    auto json = runCli({"run", path.string(), "--json", "-q"});
    const auto tasks = nlohmann::json::parse(json.out)["items"][0]["tasks"];
    EXPECT_EQ(tasks[0]["element"], "File");
    EXPECT_EQ(tasks[0]["attributes"]["fileName"], "no-such-file");
    EXPECT_EQ(tasks[0]["line"], 3);
    EXPECT_EQ(tasks[1]["version"], nlohmann::json::parse(R"({"found":"2.4.1","required":"3.0","operation":"gte"})"));
    EXPECT_EQ(tasks[2]["terms"][0]["attributes"]["procName"], "no-such-process-xyz");
}

// `compare` without --delim answers what a policy's version check without `delim` answers.
TEST(RunTruth, CompareAgreesWithAPolicysVersionCheck)
{
    testing_support::TempDir dir;
    const std::vector<std::vector<std::string>> pairs = {{"1.10", "gte", "1.9"},
                                                         {"1.10", "gt", "1.9.0"},
                                                         {"10", "gte", "9"},
                                                         {"2.0", "eq", "2"},
                                                         {"1.2.3", "lt", "1.2.4"}};
    for (const auto& pair : pairs) {
        auto path = dir.write("v.xml", policyOf("<VersionFromScript script=\"echo " + pair[0] + "\" required=\"" +
                                                pair[2] + "\" operation=\"" + pair[1] + "\"/>\n"));
        auto policy = runCli({"run", path.string(), "-q"});
        auto compare = runCli({"compare", pair[0], pair[1], pair[2]});
        EXPECT_EQ(policy.exitCode, compare.exitCode) << pair[0] << " " << pair[1] << " " << pair[2];
    }
}

// An audit-only policy is reported in full and exits 0 unless --enforce; its switches are shown.
TEST(RunTruth, SwitchesAreShownAndAuditOnlyDoesNotDecide)
{
    testing_support::TempDir dir;
    auto path = dir.write(
        "audit.xml",
        policyOf(
            "<false/>\n",
            "<auditOnly/>\n<renewip>false</renewip>\n<site>lab-3</site>\n<results><url>http://nac.test/r</url></results>\n"));
    auto text = runCli({"run", path.string(), "-q"});
    EXPECT_EQ(text.exitCode, 0) << text.err;
    EXPECT_NE(
        text.out.find("Switches: audit only (the verdict is reported, not enforced: exit status 0); no IP renewal"),
        std::string::npos)
        << text.out;
    EXPECT_NE(text.out.find("  results: http://nac.test/r\n"), std::string::npos);
    EXPECT_NE(text.out.find("Extra: site=lab-3\n"), std::string::npos);
    EXPECT_NE(text.out.find(": FAIL (0 passed, 1 failed, 0 warning, 0 skipped of 1 sections) [audit only]\n"),
              std::string::npos);
    EXPECT_EQ(runCli({"run", path.string(), "-q", "--enforce"}).exitCode, 1);
    auto json = nlohmann::json::parse(runCli({"run", path.string(), "-q", "--json"}).out);
    EXPECT_EQ(json["switches"]["auditOnly"], true);
    EXPECT_EQ(json["switches"]["renewIP"], false);
    EXPECT_EQ(json["switches"]["extra"]["site"], "lab-3");
    EXPECT_EQ(json["exitStatus"], 0);
    EXPECT_EQ(json["result"], "FAIL");
}

// --output writes the whole results file, with what an auditor needs to tie it to its policy.
TEST(RunTruth, OutputFileCarriesProvenance)
{
    testing_support::TempDir dir;
    auto results = dir.path() / "results.json";
    auto run = runCli({"run", example("noncompliant.xml"), "-q", "--output", results.string()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.out.find("Policy \"Hardened workstation\": FAIL"), std::string::npos);
    EXPECT_EQ(run.out.find("Section"), std::string::npos);  // the report went to the file
    nlohmann::json report = nlohmann::json::parse(testing_support::readFile(results));
    auto digest = runProgram({"sha256sum", example("noncompliant.xml")});
    EXPECT_EQ(report["source"]["sha256"], digest.out.substr(0, 64));
    EXPECT_EQ(report["source"]["bytes"], testing_support::readFile(example("noncompliant.xml")).size());
    EXPECT_EQ(report["run"]["tool"], "tvpolicy");
    EXPECT_FALSE(report["run"]["toolVersion"].get<std::string>().empty());
    EXPECT_EQ(report["run"]["libraryVersion"], report["run"]["toolVersion"]);
    EXPECT_EQ(report["run"]["startTime"].get<std::string>().size(), 20u);
    EXPECT_GE(report["run"]["durationMs"].get<long>(), 0);
    char host[256] = {};
    ::gethostname(host, sizeof host);
    EXPECT_EQ(report["run"]["hostName"], std::string(host).substr(0, std::string(host).find('.')));

    auto text = dir.path() / "results.txt";
    runCli({"run", example("compliant.xml"), "-q", "--output", text.string()});
    EXPECT_NE(testing_support::readFile(text).find("Policy \"Workstation baseline\": PASS"), std::string::npos);
    auto unwritable = runCli({"run", example("compliant.xml"), "-q", "--output", "/nonexistent/dir/r.json"});
    EXPECT_EQ(unwritable.exitCode, 2);
    EXPECT_NE(unwritable.err.find("the results were not saved: cannot create a file beside"), std::string::npos);
}

struct WriteFailureCase {
    std::string title;
    std::string redirect;
    std::string inErr;
};

class WriteFailureTest : public testing::TestWithParam<WriteFailureCase> {};

// Results that do not reach standard output are never a success.
TEST_P(WriteFailureTest, IsExitTwoWithAMessage)
{
    std::string command = std::string(TVPOLICY_CLI) + " run -q " + example("compliant.xml") + " " + GetParam().redirect;
    auto result = runProgram({"sh", "-c", command});
    EXPECT_EQ(result.exitCode, 2) << result.err;
    EXPECT_NE(result.err.find(GetParam().inErr), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Outputs, WriteFailureTest,
    testing::Values(WriteFailureCase{"FullDisk", ">/dev/full",
                                     "tvpolicy run: cannot write to standard output: No space left on device"},
                    WriteFailureCase{"ClosedStdout", ">&-",
                                     "tvpolicy run: cannot write to standard output: it is closed"},
                    WriteFailureCase{"ReportUnwritable", "--report /nonexistent/dir/r.html",
                                     "tvpolicy run: the HTML report was not saved: cannot create a file beside"},
                    WriteFailureCase{"JunitUnwritable", "--junit /nonexistent/dir/r.xml",
                                     "tvpolicy run: the JUnit report was not saved: cannot create a file beside"},
                    WriteFailureCase{"ReportOverOutput", "--report r.out --output ./r.out",
                                     "--output and --report name the same file"}),
    [](const testing::TestParamInfo<WriteFailureCase>& testCase) { return testCase.param.title; });

}  // namespace
