#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

#include "support/RunCli.h"
#include "support/TempDir.h"

using testing_support::runCli;

namespace {

struct TermCase {
    std::string title;
    std::string check;     // one check tree, the only one of its section
    std::string outcomes;  // the tree's outcomes, depth first: + passed, - failed, . not run
    std::string htmlSummary;
};

std::string outcomesOf(const nlohmann::json& task)
{
    std::string shown = task["passed"].is_null() ? "." : task["passed"].get<bool>() ? "+" : "-";
    for (const auto& term : task.value("terms", nlohmann::json::array())) {
        shown += outcomesOf(term);
    }
    return shown;
}

class TermOutcomesTest : public testing::TestWithParam<TermCase> {};

// Every term of and/or/not says how it went: always in JSON, in text with --trace or -v, folded
// in HTML; the terms a composite did not need show as not run.
TEST_P(TermOutcomesTest, EachTermSaysHowItWent)
{
    testing_support::TempDir dir;
    auto policy = dir.write("p.xml", "<policy name=\"p\">\n<section name=\"s\" primary=\"true\">\n" + GetParam().check +
                                         "\n</section>\n</policy>\n")
                      .string();
    auto json = runCli({"run", policy, "-q", "--json"});
    auto task = nlohmann::json::parse(json.out)["items"][0]["tasks"][0];
    EXPECT_EQ(outcomesOf(task), GetParam().outcomes) << task;

    auto plain = runCli({"run", policy, "-q"});
    auto traced = runCli({"run", policy, "-q", "--trace"});
    auto verbose = runCli({"run", policy, "-q", "-v"});
    EXPECT_EQ(plain.out.find("      false: "), std::string::npos) << plain.out;
    for (const auto* shown : {&traced.out, &verbose.out}) {
        EXPECT_NE(shown->find(GetParam().outcomes.find('.') != std::string::npos ? ": not run\n" : ": failed\n"),
                  std::string::npos)
            << *shown;
        EXPECT_NE(shown->find("      false: failed\n"), std::string::npos) << *shown;
    }

    auto html = dir.path() / "r.html";
    runCli({"run", policy, "-q", "--report", html.string()});
    EXPECT_NE(testing_support::readFile(html).find("<details><summary>" + GetParam().htmlSummary + "</summary>"),
              std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Composites, TermOutcomesTest,
                         testing::Values(TermCase{"AndStopsAtTheFirstFailure", "<and><true/><false/><true/></and>",
                                                  "-+-.", "3 terms: 1 passed, 1 failed, 1 not run"},
                                         TermCase{"OrStopsAtTheFirstPass", "<or><false/><true/><false/></or>", "+-+.",
                                                  "3 terms: 1 passed, 1 failed, 1 not run"},
                                         TermCase{"OrAllFail", "<or><false/><false/></or>", "---", "2 terms: 2 failed"},
                                         TermCase{"NotOfAnAnd", "<not><and><false/><true/></and></not>", "+--.",
                                                  "1 term: 1 failed"},
                                         TermCase{"NestedInAnUnrunTerm", "<and><false/><or><true/></or></and>", "--..",
                                                  "2 terms: 1 failed, 1 not run"}),
                         [](const testing::TestParamInfo<TermCase>& testCase) { return testCase.param.title; });

}  // namespace
