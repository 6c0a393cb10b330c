#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/TaskResponse.h>

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "support/CaptureStream.h"
#include "support/PolicyText.h"

namespace {

using testing_support::CaptureStream;
using testing_support::parsePolicy;

// "name=status" of every item in key order; an option lists its sections in brackets.
std::string statusesOf(std::map<std::string, Section*>& items)
{
    std::string text;
    for (auto& [key, item] : items) {
        text += (text.empty() ? "" : " ") + item->getName() + "=" + std::to_string(item->getStatus());
        if (item->getType() == "Option") {
            text += "[" + statusesOf(static_cast<Option*>(item)->getSections()) + "]";
        }
    }
    return text;
}

struct RunCase {
    std::string title;
    std::string body;  // inside <policy name="p">
    bool result;
    std::vector<std::string> announced;
    std::string statuses;
    std::vector<std::string> traceLines;  // must appear in the trace, in this order
    std::uint32_t progressMax;
};

class PolicyRunTest : public testing::TestWithParam<RunCase> {};

TEST_P(PolicyRunTest, EvaluatesAnnouncesAndTraces)
{
    const RunCase& c = GetParam();
    auto parsed = parsePolicy("<policy name=\"p\">" + c.body + "</policy>");
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    Policy& policy = *parsed.policy;
    std::vector<std::string> announced;
    policy.connect([&](std::shared_ptr<std::string> name) { announced.push_back(*name); });

    std::string trace;
    {
        CaptureStream log(std::clog);
        CaptureStream out(std::cout);
        EXPECT_EQ(policy.run(), c.result);
        trace = testing_support::withoutTimestamps(log.text());
    }
    EXPECT_EQ(policy.getResult(), c.result);
    EXPECT_EQ(announced, c.announced);
    EXPECT_EQ(statusesOf(policy.getSections()), c.statuses);
    EXPECT_EQ(policy.getProgressMax(), c.progressMax);
    EXPECT_EQ(policy.getProgress(), c.progressMax);
    std::string::size_type at = 0;
    for (const std::string& line : c.traceLines) {
        std::string::size_type found = trace.find(line + "\n", at);
        ASSERT_NE(found, std::string::npos) << "missing, or out of order: " << line << "\n" << trace;
        at = found + line.size();
    }
}

const std::string pass = "<Validate status=\"true\"/>";
const std::string fail = "<Validate status=\"false\"/>";

std::string section(const std::string& name, const std::string& attributes, const std::string& content)
{
    return "<section name=\"" + name + "\" " + attributes + ">" + content + "</section>";
}

INSTANTIATE_TEST_SUITE_P(
    Policies, PolicyRunTest,
    testing::Values(
        RunCase{"Empty", "", true, {""}, "", {"Running_Policy p", "Policy p Passed "}, 0},
        RunCase{"UngroupedPrimaryFails",
                section("A", "primary=\"true\"", fail),
                false,
                {"A", ""},
                "A=2",
                {"Running_Policy p", "\tTesting A", "\t\tValidateTask Failed", "\t\t\tInfo: ValidateTask disabled.",
                 "\tA status 2", "\tA failed", "Policy p Failed."},
                1},
        RunCase{"SecondariesOutsideGroupsAreNeverEvaluated",
                section("A", "primary=\"true\"", pass) + section("B", "", fail),
                true,
                {"A", ""},
                "A=1 B=0",
                {"\t\tValidateTask Passed ", "\tA status 1", "\tA passed", "Policy p Passed "},
                2},
        RunCase{"FailedPrimarySkipsItsGroup",
                section("P", "primary=\"true\" group=\"g\"", fail) + section("S1", "group=\"g\"", pass) +
                    section("S2", "group=\"g\"", pass) + section("T", "group=\"other\"", fail),
                false,
                {"P", "", "", ""},
                "P=2 S1=0 S2=0 T=0",
                {"--Start Custom Scan primary section 'P' for group 'g'", "\tSkipping evaluation of S1",
                 "\tSkipping evaluation of S2", "--End Custom Scan primary section 'P' for group 'g'"},
                4},
        RunCase{"PassedPrimaryRunsItsSecondaries",
                section("P", "primary=\"true\" group=\"g\"", pass) + section("S", "group=\"g\"", fail),
                false,
                {"P", "S", ""},
                "P=1 S=2",
                {"--Start Custom Scan primary section 'P' for group 'g'",
                 "--Primary Passed and Section Not Skipped... Starting section 'S' for group 'g'", "\tS failed",
                 "--End Custom Scan primary section 'P' for group 'g'"},
                2},
        RunCase{
            "ProhibitedGroupedPrimaryThatFailsIsSkipped",
            section("P", "primary=\"true\" group=\"g\" prohibit=\"true\"", fail) + section("S", "group=\"g\"", pass),
            true,
            {"P", "", ""},
            "P=4 S=0",
            {"\t P failed, but prohibited, so we need to skip this.", "\tSkipping evaluation of S"},
            2},
        RunCase{
            "ProhibitedSectionThatPassesFails",
            section("A", "primary=\"true\" prohibit=\"true\"", pass) +
                section("W", "primary=\"true\" prohibit=\"true\" severity=\"warning\"", pass),
            false,
            {"A", "W", ""},
            "A=3 W=5",
            {"\t A passed, but forced to failure due to prohibit=true.", "\tA status 3", "\tA failed", "\tW status 5"},
            2},
        RunCase{"WarningStillFailsAnUngroupedSection",
                section("W", "primary=\"true\" severity=\"warning\"", fail),
                false,
                {"W", ""},
                "W=5",
                {"\tW status 5"},
                1},
        RunCase{
            "SkipAttributeSkipsTheSection",
            section("K", "primary=\"true\" prohibit=\"true\"", "<and skip=\"true\">" + pass + "</and>") +
                section("G", "primary=\"true\" group=\"g\"", "<and skip=\"true\"><true/></and>") +
                section("S", "group=\"g\"", pass),
            false,
            {"K", "G", "", ""},
            "K=0 G=0 S=0",
            {"\t K results skipped due to skip attribute.", "\tK status 0", "\tK failed", "\tSkipping evaluation of S"},
            3},
        RunCase{"EveryTaskIsPerformedAfterAFailure",
                section("A", "primary=\"true\"", fail + pass + "<false/>"),
                false,
                {"A", ""},
                "A=2",
                {"\t\tValidateTask Failed", "\t\tValidateTask Passed ", "\t\tfalseTask Failed", "\t\t\tInfo: "},
                1},
        RunCase{"CustomScanSecondaryIsTestedTwice",
                section("P", "primary=\"true\" group=\"g\"", pass) + section("C", "group=\"g\" custom=\"true\"", pass),
                true,
                {"P", "C", "C", "C", ""},
                "P=1 C=1",
                {"--Start Custom Scan primary section 'P' for group 'g'",
                 "--Start Custom Scan secondary section 'C' for group 'g'",
                 "--Primary Passed and Section Not Skipped... Starting section 'C' for group 'g'",
                 "--End Custom Scan secondary section 'C' for group 'g'"},
                2},
        RunCase{"OptionWithGroups",
                "<option name=\"o\">" + section("P1", "primary=\"true\" group=\"a\"", fail) +
                    section("S1", "group=\"a\"", pass) + section("P2", "primary=\"true\" group=\"b\"", pass) +
                    section("S2", "group=\"b\" prohibit=\"true\"", fail) + "</option>" +
                    section("X", "primary=\"true\"", pass),
                true,
                {"P1", "", "P2", "S2", "X", ""},
                "o=1[P1=2 S1=0 P2=1 S2=4] X=1",
                {"--Start primary section 'P1' for group 'a'", "\tSkipping evaluation of S1",
                 "--End primary section 'P1' for group 'a'", "--Start primary section 'P2' for group 'b'",
                 "--Primary Passed and Section Not Skipped... Starting section 'S2' for group 'b'"},
                5},
        RunCase{"OptionOfUngroupedPrimariesStopsAtTheFirstPass",
                "<option name=\"o\">" + section("A", "primary=\"true\"", fail) +
                    section("B", "primary=\"true\"", pass) + section("C", "primary=\"true\"", fail) + "</option>",
                true,
                {"A", "B", ""},
                "o=0[A=2 B=1 C=0]",
                {},
                3},
        RunCase{"FailedOptionOfUngroupedPrimariesCountsAsSkipped",
                "<option name=\"o\">" + section("A", "primary=\"true\"", fail) + "</option>",
                true,
                {"A", ""},
                "o=0[A=2]",
                {},
                1},
        RunCase{"OnlyOneOptionFailsWhenAGroupCountsTwice",
                "<option name=\"o\" type=\"ONLY\">" + section("P", "primary=\"true\" group=\"g\"", pass) + "</option>",
                false,
                {"P", ""},
                "o=2[P=1]",
                {"Option o is an ONLY ONE option", "group g fully passed", "group g partially passed",
                 "setting retval to false because count = 2"},
                1},
        // A single fully passed group is not enough either: the ONLY type never turns a grouped result to true.
        RunCase{"OnlyOneOptionWithACustomScanPrimary",
                "<option name=\"o\" type=\"ONLY\">" +
                    section("P", "primary=\"true\" group=\"g\" custom=\"true\"", pass) + "</option>",
                false,
                {"P", ""},
                "o=2[P=1]",
                {"Option o is an ONLY ONE option", "group g fully passed"},
                1},
        RunCase{"OptionWithoutSections", "<option name=\"o\"/>", true, {""}, "o=0[]", {}, 0},
        RunCase{"WarningsMakeAFailedOptionStatusFive",
                "<option name=\"o\">" + section("P", "primary=\"true\" group=\"g\" severity=\"warning\"", fail) +
                    "</option>",
                false,
                {"P", ""},
                "o=5[P=5]",
                {},
                1}),
    [](const testing::TestParamInfo<RunCase>& testCase) { return testCase.param.title; });

TEST(PolicyRun, AKeptAnnouncementOutlivesTheRun)
{
    auto parsed = parsePolicy("<policy>" + section("A", "primary=\"true\"", pass) + "</policy>");
    std::vector<std::shared_ptr<std::string>> kept;
    parsed.policy->connect([&](std::shared_ptr<std::string> name) { kept.push_back(name); });
    CaptureStream log(std::clog);
    parsed.policy->run();
    parsed.policy.reset();
    ASSERT_EQ(kept.size(), 2u);
    EXPECT_EQ(*kept[0], "A");
}

TEST(PolicyRun, ResultsAccumulateAcrossRuns)
{
    auto parsed = parsePolicy("<policy>" + section("A", "primary=\"true\"", pass + fail) + "</policy>");
    CaptureStream log(std::clog);
    parsed.policy->run();
    parsed.policy->run();
    Section* a = parsed.policy->getSections().begin()->second;
    ASSERT_EQ(a->getResults().size(), 4u);
    EXPECT_TRUE(a->getResults().front()->passed);
    EXPECT_EQ(a->getResults().back()->message, "ValidateTask disabled.");
}

TEST(OptionRules, AllFailedAndGroupQueries)
{
    auto parsed =
        parsePolicy("<policy><option name=\"o\">" + section("P", "primary=\"true\" group=\"g\"", pass) +
                    section("W", "primary=\"true\" group=\"h\" severity=\"warning\" prohibit=\"true\"", fail) +
                    "</option><option name=\"e\"/></policy>");
    auto* option = static_cast<Option*>(parsed.policy->getSections()["000o"]);
    auto* empty = static_cast<Option*>(parsed.policy->getSections()["000e"]);
    EXPECT_TRUE(empty->allFailed());
    EXPECT_TRUE(empty->isAllProhibited());
    EXPECT_EQ(empty->getType(), "Option");
    CaptureStream log(std::clog);
    EXPECT_TRUE(option->test());
    EXPECT_FALSE(option->allFailed());
    EXPECT_TRUE(option->groupPartiallyPassed("g"));
    EXPECT_FALSE(option->groupPartiallyPassed("h"));
    EXPECT_FALSE(option->groupPartiallyPassed("unknown"));
    EXPECT_FALSE(option->isAllProhibited());
    EXPECT_EQ(option->getPrimaryGroup(), "g");
}

// Progress as a slot sees it at each announcement: options and grouped top-level primaries
// count their sections after announcing them, ungrouped sections and top-level secondaries do
// not count, and the end sets the maximum before its empty announcement.
TEST(PolicyRun, ProgressCountsAsSectionsAreAnnounced)
{
    auto parsed = parsePolicy(
        "<policy><option name=\"o\">" + section("P1", "primary=\"true\" group=\"a\"", fail) +
        section("S1", "group=\"a\"", pass) + section("P2", "primary=\"true\" group=\"b\"", pass) +
        section("S2", "group=\"b\"", pass) + "</option>" + section("X", "primary=\"true\"", pass) +
        section("G", "primary=\"true\" group=\"g\"", pass) + section("H", "group=\"g\"", pass) + "</policy>");
    Policy& policy = *parsed.policy;
    std::vector<std::uint32_t> seen;
    policy.connect([&](std::shared_ptr<std::string>) { seen.push_back(policy.getProgress()); });
    CaptureStream log(std::clog);
    policy.run();
    EXPECT_EQ(seen, (std::vector<std::uint32_t>{0, 1, 2, 3, 4, 4, 5, 7}));
    EXPECT_EQ(policy.getProgressMax(), 7u);
}

}  // namespace
