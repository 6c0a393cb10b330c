#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <iostream>

#include "support/CaptureStream.h"
#include "support/PolicyText.h"
#include "support/TempDir.h"

namespace {

using testing_support::CaptureStream;
using testing_support::ParsedPolicy;
using testing_support::parsePolicy;

std::vector<std::string> keysOf(const std::map<std::string, Section*>& items)
{
    std::vector<std::string> keys;
    keys.reserve(items.size());
    for (const auto& entry : items) {
        keys.push_back(entry.first);
    }
    return keys;
}

struct ParseCase {
    std::string title;
    std::string xml;
    std::function<void(Policy&)> check;
};

class PolicyParseTest : public testing::TestWithParam<ParseCase> {};

TEST_P(PolicyParseTest, ReadsTheDocument)
{
    ParsedPolicy parsed = parsePolicy(GetParam().xml);
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    GetParam().check(*parsed.policy);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, PolicyParseTest,
    testing::Values(
        ParseCase{"JunkAroundTheMarkupIsIgnored",
                  "HTTP/1.1 200 junk\n<policy name=\"p\" base=\"http://srv/\"/>\ntrailing junk",
                  [](Policy& p) {
                      EXPECT_EQ(p.getName(), "p");
                      EXPECT_EQ(p.getBaseUrl(), "http://srv/");
                  }},
        ParseCase{"OptionsSortByNameSectionsKeepDocumentOrder",
                  "<policy><option name=\"b\"/><section name=\"z\"/><option name=\"a\"/><section name=\"a\"/></policy>",
                  [](Policy& p) {
                      EXPECT_EQ(keysOf(p.getSections()), (std::vector<std::string>{"000a", "000b", "001z", "002a"}));
                      EXPECT_EQ(p.getSectionCount(), 2u);
                      EXPECT_EQ(p.getSections()["000a"]->getType(), "Option");
                      EXPECT_EQ(p.getSections()["001z"]->getType(), "Section");
                  }},
        ParseCase{
            "ServerAddressesAreMadeAbsoluteUnlessPlainHttp",
            "<policy base=\"http://srv/\"><success><url>ok.jsp</url></success>"
            "<failure><url>http://other/f</url></failure><results><url>https://sec/r</url></results>"
            "<init>no-url-here</init><progress><url>p</url></progress><supplicant><url>s</url></supplicant></policy>",
            [](Policy& p) {
                EXPECT_EQ(p.getSuccessUrl(), "http://srv/ok.jsp");
                EXPECT_EQ(p.getFailureUrl(), "http://other/f");
                EXPECT_EQ(p.getResultsUrl(), "http://srv/https://sec/r");
                EXPECT_EQ(p.getInitUrl(), "http://srv/");
                EXPECT_EQ(p.getProgressUrl(), "http://srv/p");
                EXPECT_EQ(p.getSupplicantUrl(), "http://srv/s");
                EXPECT_EQ(p.getExtraInformation(), "");
            }},
        ParseCase{"SwitchesAndExtraInformation",
                  "<policy><auditOnly/><registerFailedRogue/><renewip>False</renewip><ip>10.0.0.7</ip>"
                  "<name>v</name><site> </site><room>B 12</room></policy>",
                  [](Policy& p) {
                      EXPECT_TRUE(p.isAuditOnly());
                      EXPECT_TRUE(p.isRegisterFailedRogue());
                      EXPECT_TRUE(p.isRenewIP());
                      EXPECT_EQ(p.getPrimaryIP(), "10.0.0.7");
                      EXPECT_EQ(p.getExtraInformation(), "name=v&room=B 12");
                      EXPECT_EQ(p.getExtraInfo("room"), "B 12");
                      EXPECT_EQ(p.getExtraInfo("site"), "");
                  }},
        ParseCase{"RenewIpClearsOnlyForFalse",
                  "<policy><renewip>false</renewip><primaryIP>1.2.3.4</primaryIP></policy>",
                  [](Policy& p) {
                      EXPECT_FALSE(p.isRenewIP());
                      EXPECT_EQ(p.getPrimaryIP(), "1.2.3.4");
                  }},
        ParseCase{"IncludesNeedAnAddress",
                  "<policy><include id=\"none\"/><include id=\"inc\" url=\"http://127.0.0.1/s.xml\" instr=\"x\"/>"
                  "<option name=\"o\"><include id=\"in-o\" url=\"http://h/o.xml\"/></option></policy>",
                  [](Policy& p) {
                      EXPECT_EQ(keysOf(p.getSections()), (std::vector<std::string>{"000o", "inc"}));
                      EXPECT_EQ(p.getSections()["inc"]->getUrl(), "http://127.0.0.1/s.xml");
                      auto* option = static_cast<Option*>(p.getSections()["000o"]);
                      EXPECT_EQ(keysOf(option->getSections()), std::vector<std::string>{"in-o"});
                  }},
        ParseCase{"SectionAttributes",
                  "<policy><section name=\"s\" instr=\"http://i/\" group=\"g\" prohibit=\"true\" custom=\"true\" "
                  "severity=\"warning\" primary=\"true\"/><section name=\"t\" prohibit=\"TRUE\" custom=\"1\" "
                  "severity=\"Warning\" primary=\"yes\"/><section name=\"u\" group=\"g\"/></policy>",
                  [](Policy& p) {
                      Section* s = p.getSections()["001s"];
                      EXPECT_EQ(s->getInstructionsUrl(), "http://i/");
                      EXPECT_EQ(s->getGroup(), "g");
                      EXPECT_TRUE(s->isProhibited() && s->isCustomScan() && s->isWarning() && s->isPrimary());
                      Section* second = p.getSections()["002t"];
                      EXPECT_FALSE(second->isProhibited() || second->isCustomScan() || second->isWarning() ||
                                   second->isPrimary());
                      EXPECT_EQ(p.getGroupCounts(), (std::map<std::string, std::uint32_t>{{"", 1}, {"g", 2}}));
                  }},
        ParseCase{"OptionAttributes",
                  "<policy><option id=\"first\" name=\"second\" instr=\"http://i/\" preferred=\"g2\" type=\"ONLY\">"
                  "<section name=\"s\" primary=\"true\"/></option><option id=\"x\" type=\"only\"/><option/></policy>",
                  [](Policy& p) {
                      EXPECT_EQ(keysOf(p.getSections()), (std::vector<std::string>{"000second", "000x"}));
                      auto* option = static_cast<Option*>(p.getSections()["000second"]);
                      EXPECT_EQ(option->getName(), "second");
                      EXPECT_EQ(option->getInstructionsUrl(), "http://i/");
                      EXPECT_EQ(option->getPreferred(), "g2");
                      EXPECT_EQ(option->getLogicType(), 2);
                      EXPECT_EQ(keysOf(option->getSections()), std::vector<std::string>{"001s"});
                      EXPECT_EQ(static_cast<Option*>(p.getSections()["000x"])->getLogicType(), 1);
                  }},
        ParseCase{"SectionContentBuildsTaskTrees",
                  "<policy><section name=\"s\"><help>Turn it on.</help><and><Validate status=\"true\"/>"
                  "<unknown><true/></unknown><not><false/></not></and><or/><Validate/></section>"
                  "<section name=\"h\"><help>x $KVI$ y</help></section><after>text</after></policy>",
                  [](Policy& p) {
                      Section* s = p.getSections()["001s"];
                      EXPECT_EQ(s->getHelp(), "Turn it on.");
                      std::vector<std::string> types;
                      for (Task* task : s->getTasks()) {
                          types.push_back(task->getType());
                      }
                      EXPECT_EQ(types, (std::vector<std::string>{"andTask", "orTask", "ValidateTask"}));
                      std::list<Task*>* terms = s->getTasks().front()->getTerms();
                      ASSERT_EQ(terms->size(), 3u);
                      EXPECT_EQ(terms->back()->getType(), "notTask");
                      EXPECT_EQ(p.getSections()["002h"]->getHelp(), "");
                      EXPECT_EQ(p.getExtraInformation(), "after=text");  // the reader came back to the policy
                  }}),
    [](const testing::TestParamInfo<ParseCase>& testCase) { return testCase.param.title; });

struct FatalCase {
    std::string title;
    std::string xml;
    bool showErrors;
    std::string message;
    std::string out;
};

class PolicyFatalTest : public testing::TestWithParam<FatalCase> {};

TEST_P(PolicyFatalTest, ReportsWhereTheDocumentBroke)
{
    const FatalCase& c = GetParam();
    ParsedPolicy parsed = parsePolicy(c.xml, c.showErrors);
    EXPECT_TRUE(parsed.policy->getFatalParseError());
    EXPECT_EQ(parsed.policy->getFatalErrorMsg(), c.message);
    EXPECT_EQ(parsed.out.substr(0, c.out.size()), c.out);
}

const std::string unreadable =
    "Unable to read policy.\r\n\r\nPlease check your personal firewall settings and try again.";

INSTANTIATE_TEST_SUITE_P(
    Documents, PolicyFatalTest,
    testing::Values(FatalCase{"Empty", "", true, unreadable, "Unable to read policy"},
                    FatalCase{"NoMarkup", "404 Not Found", true, unreadable, "Unable to read policy"},
                    FatalCase{"Truncated", "<policy name=\"p\">\n<section name=\"a\">\n<Validate status=\"true\"/>\n",
                              true, "A configuration error has occurred at line: 3", "Error,  "},
                    FatalCase{"MismatchedTag", "<policy>\n<section name=\"a\">\n</policy>", true,
                              "A configuration error has occurred at line: 3", "Error,  "},
                    FatalCase{"QuietWithoutShowErrors", "<policy>\n<broken", false, "", ""}),
    [](const testing::TestParamInfo<FatalCase>& testCase) { return testCase.param.title; });

TEST(PolicyParse, ItemsBuiltBeforeAFatalErrorStay)
{
    ParsedPolicy parsed =
        parsePolicy("<policy>\n<section name=\"a\"><true/></section>\n<section name=\"b\">\n<oops</policy>");
    ASSERT_TRUE(parsed.policy->getFatalParseError());
    EXPECT_EQ(keysOf(parsed.policy->getSections()), (std::vector<std::string>{"001a", "002b"}));
}

TEST(PolicyParse, ParseFromItsUrlReportsFailure)
{
    Policy policy("svc://server:8443/policy", nullptr);
    CaptureStream out(std::cout);
    EXPECT_FALSE(policy.parse());
    EXPECT_TRUE(policy.getFatalParseError());
}

TEST(PolicyParse, CachedResultsIgnoreTheEmptyKey)
{
    Policy policy("", nullptr);
    TaskResponse first, second;
    policy.addCachedResult("", &first);
    EXPECT_EQ(policy.getCachedResult(""), nullptr);
    EXPECT_EQ(policy.getCachedResult("k"), nullptr);
    policy.addCachedResult("k", &first);
    policy.addCachedResult("k", &second);
    EXPECT_EQ(policy.getCachedResult("k"), &second);
}

TEST(PolicyParse, LogsEveryEventWithItsTimestamp)
{
    ParsedPolicy parsed = parsePolicy("<policy name=\"p\"><x>t</x></policy>");
    const std::string log = testing_support::withoutTimestamps(parsed.log);
    for (const char* line :
         {"<policy name=\"p\"><x>t</x></policy>\n", "startElement qname = policy\n", "name = name value = p\n",
          "startElement qname = x\n", "Chars: t\n", "endElement qname = x\n", "endElement qname = policy\n"}) {
        EXPECT_NE(log.find(line), std::string::npos) << line;
    }
}

TEST(PolicyDebug, TheDebugElementOpensTheFileUnderTemp)
{
    testing_support::TempDir dir;
    const char* saved = std::getenv("temp");
    std::string savedValue = saved != nullptr ? saved : "";
    ::setenv("temp", (dir.path().string() + "/").c_str(), 1);
    ParsedPolicy parsed = parsePolicy(
        "<policy name=\"d\" base=\"http://srv/\"><debug>true</debug>"
        "<section name=\"s\" primary=\"true\"><true/></section></policy>");
    saved != nullptr ? ::setenv("temp", savedValue.c_str(), 1) : ::unsetenv("temp");
    ASSERT_TRUE(parsed.policy->isDebug());
    {
        CaptureStream log(std::clog);
        parsed.policy->run();
        std::string text = testing_support::withoutTimestamps(log.text());
        EXPECT_NE(text.find("Running_Policy d\nDebug: Running_Policy d\n"), std::string::npos) << text;
    }
    std::string text = testing_support::withoutTimestamps(testing_support::readFile(dir.path() / "\\csalog.txt"));
    EXPECT_EQ(text.substr(0, 47), "Running_Policy d\n\tTesting s\n\t\ttrueTask Passed \n");
}

TEST(PolicyDebug, OnlyTheExactTrueTurnsItOn)
{
    for (const char* text : {"TRUE", "1", "yes"}) {
        Policy policy("", nullptr);
        policy.setDebug(text);
        EXPECT_FALSE(policy.isDebug()) << text;
    }
}

}  // namespace
