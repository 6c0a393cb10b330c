// Every verdict says why: elements the reader passes over are warned and refused by --strict,
// sections that checked nothing are never shown as passed, and a FAIL names the sections that
// decided it in text, JSON, HTML and JUnit, whose failure count agrees with the exit status.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <regex>
#include <string>
#include <vector>

#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

std::string policyOf(const std::string& body, const std::string& head = "<policy name=\"p\">")
{
    return head + "\n<section name=\"ok\" primary=\"true\"><true/></section>\n" + body + "\n</policy>\n";
}

struct VerdictCase {
    std::string title;
    std::string policy;
    int exitCode;
    std::vector<std::string> inOut;  // each on standard output (text)
    std::vector<std::string> inErr;  // each on standard error
    bool strictRefuses;              // --strict exits 2
    std::size_t deciders;            // entries of decidedBy
};

class VerdictTest : public testing::TestWithParam<VerdictCase> {};

unsigned junitFailures(const std::string& xml)
{
    std::smatch match;
    EXPECT_TRUE(std::regex_search(xml, match, std::regex("<testsuite [^>]*failures=\"([0-9]+)\""))) << xml;
    return match.empty() ? 0 : static_cast<unsigned>(std::stoul(match[1]));
}

void expectEach(const std::string& text, const std::vector<std::string>& parts)
{
    for (const std::string& part : parts) {
        EXPECT_NE(text.find(part), std::string::npos) << "missing: " << part << "\nin: " << text;
    }
}

// A run of `policy` with the HTML and JUnit reports, in `dir`.
struct ReportedRun {
    std::string path;
    std::string junit;
    std::string html;
    testing_support::CliResult text;
};

ReportedRun runWithReports(testing_support::TempDir& dir, const std::string& policy)
{
    ReportedRun run;
    run.path = dir.write("p.xml", policy).string();
    run.junit = (dir.path() / "j.xml").string();
    run.html = (dir.path() / "r.html").string();
    run.text = runCli({"run", run.path, "-q", "--junit", run.junit, "--report", run.html});
    return run;
}

TEST_P(VerdictTest, SaysWhyInEveryOutput)
{
    const VerdictCase& c = GetParam();
    testing_support::TempDir dir;
    ReportedRun run = runWithReports(dir, c.policy);
    const std::string& path = run.path;
    const std::string& junit = run.junit;
    const std::string& html = run.html;
    const testing_support::CliResult& text = run.text;
    EXPECT_EQ(text.exitCode, c.exitCode) << text.out << text.err;
    expectEach(text.out, c.inOut);
    expectEach(text.err, c.inErr);
    // A CI system reads failures from JUnit: some exactly when the run failed.
    EXPECT_EQ(junitFailures(testing_support::readFile(junit)) > 0, text.exitCode == 1);

    auto json = runCli({"run", path, "-q", "--json"});
    nlohmann::json report = nlohmann::json::parse(json.out);
    EXPECT_EQ(report["decidedBy"].size(), c.deciders) << report["decidedBy"].dump(2);
    std::string page = testing_support::readFile(html);
    for (const auto& decider : report["decidedBy"]) {
        std::string rule = decider["rule"].get<std::string>();
        EXPECT_NE(text.out.find("  because " + rule + "\n"), std::string::npos) << text.out;
        EXPECT_NE(page.find("id=\"decided-by\""), std::string::npos);
    }
    EXPECT_EQ(report["passed"].get<bool>(), report["decidedBy"].empty());

    auto strict = runCli({"run", path, "-q", "--strict"});
    EXPECT_EQ(strict.exitCode == 2, c.strictRefuses) << strict.err;
    auto lint = runCli({"lint", path});
    if (c.strictRefuses) {
        EXPECT_EQ(lint.exitCode, 1) << lint.out;
    }
}

const char* prohibitedRule =
    "section 'No telnet server package' is prohibited and stands alone, so it counts as failed whatever its checks "
    "find";

INSTANTIATE_TEST_SUITE_P(
    Policies, VerdictTest,
    testing::Values(
        VerdictCase{
            "MisspeltSection",
            policyOf("<sectoin name=\"b\" primary=\"true\"><false/></sectoin>"),
            0,
            {"PASS (1 passed, 0 failed, 0 warning, 0 skipped of 1 sections; 1 element not evaluated)"},
            {"line 3: <sectoin> under <policy> is not an element the policy reader uses", "did you mean <section>?"},
            true,
            0},
        VerdictCase{
            "CapitalisedElements",
            policyOf("<Section name=\"b\" primary=\"true\"><false/></Section>\n<Include id=\"i\" url=\"http://x/\"/>"
                     "\n<AuditOnly/>"),
            0,
            {"3 elements not evaluated"},
            {"line 3: <Section>", "did you mean <section>?", "line 4: <Include>", "did you mean <include>?",
             "line 5: <AuditOnly>", "did you mean <auditOnly>?"},
            true,
            0},
        VerdictCase{"MisspeltUnderAnOption",
                    policyOf("<option name=\"o\" type=\"ANY\"><sectoin name=\"b\" primary=\"true\"><true/></sectoin>"
                             "<section name=\"c\" primary=\"true\"><true/></section></option>"),
                    0,
                    {"1 element not evaluated"},
                    {"line 3: <sectoin> under <option>"},
                    true,
                    0},
        VerdictCase{
            "TextBecomesAnExtra",
            policyOf("<contact>admin@example.test</contact>"),
            0,
            {"Extra: contact=admin@example.test", "PASS (1 passed, 0 failed, 0 warning, 0 skipped of 1 sections)\n"},
            {},
            false,
            0},
        VerdictCase{
            "SectionOfOnlyATypo",
            policyOf("<section name=\"t\" primary=\"true\"><file fileName=\"passwd\" startPath=\"/etc\"/></section>"),
            0,
            {"Section \"t\": not evaluated (every element in it names no check kind", "1 section checked nothing"},
            {"<file> in section \"t\""},
            true,
            0},
        VerdictCase{"SectionOfOnlyUnknownAttributes",
                    policyOf("<section name=\"t\" primary=\"true\"><and skipp=\"true\"/></section>"),
                    0,
                    {"Section \"t\": not evaluated (no attribute of its checks is one that they read"},
                    {},
                    true,
                    0},
        VerdictCase{
            "ProhibitedStandAlone",
            policyOf(
                "<section name=\"No telnet server package\" primary=\"true\" prohibit=\"true\"><false/></section>"),
            1,
            {"FAIL (1 passed, 0 failed, 0 warning, 1 skipped of 2 sections)", prohibitedRule},
            {},
            false,
            1},
        VerdictCase{"SkipInAStandAloneSection",
                    policyOf("<section name=\"s\" primary=\"true\"><and skip=\"true\"><true/></and></section>"),
                    1,
                    {"because section 's' stands alone and a check asked to skip it"},
                    {},
                    false,
                    1},
        VerdictCase{"WarningSeverityStandAlone",
                    policyOf("<section name=\"w\" primary=\"true\" severity=\"warning\"><false/></section>"),
                    1,
                    {"because section 'w' has severity warning, but it did not pass"},
                    {},
                    false,
                    1},
        VerdictCase{"GroupedFailure",
                    policyOf("<section name=\"g1\" primary=\"true\" group=\"g\"><true/></section>"
                             "<section name=\"g2\" group=\"g\"><false/></section>"),
                    1,
                    {"because section 'g2' failed: false"},
                    {},
                    false,
                    1},
        VerdictCase{
            "VersionsReadAsOneNumber",
            policyOf("<section name=\"v\" primary=\"true\"><VersionFromScript script=\"echo 5.4.0\" "
                     "required=\"5.10\"/><VersionFromScript script=\"echo 1.2\" required=\"1.2.9\" "
                     "operation=\"eq\"/></section>"),
            0,
            {"found \"5.4.0\", required gte \"5.10\" (compared as 5 against 5: without delim each version is read "
             "as one number up to its first non-digit)",
             "found \"1.2\", required eq \"1.2.9\" (compared as 1 against 1:"},
            {},
            false,
            0},
        VerdictCase{"MissingFileWithADate",
                    policyOf("<section name=\"d\" primary=\"true\"><File fileName=\"nothing-here\" "
                             "startPath=\"/nonexistent\" lastModified=\"2020-1-1\"/></section>"),
                    1,
                    {"FileTask/Too Old: 0-0-0 (no file named 'nothing-here' found under /nonexistent)"},
                    {},
                    false,
                    1},
        VerdictCase{
            "AuditOnlyDoesNotFailCi",
            policyOf("<auditOnly/><section name=\"No telnet server package\" primary=\"true\" prohibit=\"true\">"
                     "<false/></section>"),
            0,
            {"[audit only]", prohibitedRule},
            {},
            false,
            1}),
    [](const testing::TestParamInfo<VerdictCase>& testCase) { return testCase.param.title; });

// An option none of whose sections is in a group has the library's status 0 (skipped) whatever
// its sections find, and a skipped option never fails the policy. No output may call a passing
// one skipped, nor hide a failing one behind the word: each says what happened and why it does
// not count, and JUnit agrees with the exit status.
struct OptionCase {
    std::string title;
    std::string options;
    int exitCode;
    std::string statusText;            // of the option, in JSON
    std::vector<std::string> inOut;    // each on standard output (text)
    std::vector<std::string> inJunit;  // each in the JUnit file
};

class UngroupedOptionTest : public testing::TestWithParam<OptionCase> {};

TEST_P(UngroupedOptionTest, IsShownByItsOutcome)
{
    const OptionCase& c = GetParam();
    testing_support::TempDir dir;
    ReportedRun run = runWithReports(dir, policyOf(c.options));
    EXPECT_EQ(run.text.exitCode, c.exitCode) << run.text.out << run.text.err;
    expectEach(run.text.out, c.inOut);
    EXPECT_EQ(run.text.out.find("Option \"o\": skipped"), std::string::npos) << run.text.out;
    std::string xml = testing_support::readFile(run.junit);
    EXPECT_EQ(junitFailures(xml) > 0, run.text.exitCode == 1) << xml;
    expectEach(xml, c.inJunit);
    nlohmann::json report = nlohmann::json::parse(runCli({"run", run.path, "-q", "--json"}).out);
    nlohmann::json option;
    for (const auto& item : report["items"]) {
        option = item["kind"] == "option" ? item : option;
    }
    EXPECT_EQ(option["status"], 0) << option;  // the library's number stays
    EXPECT_EQ(option["statusText"], c.statusText) << option;
    std::string page = testing_support::readFile(run.html);
    std::string note = option.value("statusNote", option.value("notEvaluatedBecause", ""));
    EXPECT_FALSE(note.empty()) << option;
    EXPECT_NE(page.find(note.substr(0, note.find('\''))), std::string::npos) << note;  // up to the escaped quotes
}

const std::string statusZero = "the library gives status 0 (skipped) to an option none of whose sections is in a group";

INSTANTIATE_TEST_SUITE_P(
    Options, UngroupedOptionTest,
    testing::Values(OptionCase{"PassesThroughItsSecond",
                               "<option name=\"o\"><section name=\"a\" primary=\"true\"><false/></section>"
                               "<section name=\"b\" primary=\"true\"><true/></section></option>",
                               0,
                               "passed",
                               {"Option \"o\": passed (" + statusZero, "it passed through section 'b'"},
                               {"its option passed without it"}},
                    OptionCase{"OnlyTypePassesThroughOne",
                               "<option name=\"o\" type=\"ONLY\"><section name=\"a\" primary=\"true\"><true/></section>"
                               "</option>",
                               0,
                               "passed",
                               {"Option \"o\": passed ("},
                               {}},
                    OptionCase{
                        "FailsWithoutCounting",
                        "<option name=\"o\"><section name=\"a\" primary=\"true\"><false/></section>"
                        "<section name=\"b\" primary=\"true\"><false/></section></option>",
                        0,
                        "failed, not counted",
                        {"Option \"o\": failed, not counted (" + statusZero,
                         "a skipped option does not fail the policy", "; 1 failed option not counted)"},
                        {"its option failed, but an option none of whose sections is in a group counts as skipped"}},
                    OptionCase{"HoldsNoSection",
                               "<option name=\"o\"></option>",
                               0,
                               "not evaluated",
                               {"Option \"o\": not evaluated (it holds no section)", "; 1 option without sections)"},
                               {}}),
    [](const testing::TestParamInfo<OptionCase>& testCase) { return testCase.param.title; });

}  // namespace
