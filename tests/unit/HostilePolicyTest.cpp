#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <iostream>
#include <string>

#include "support/CaptureStream.h"
#include "support/PolicyText.h"
#include "support/TempDir.h"
#include "support/XmlText.h"
#include "xml/DocumentLimits.h"

namespace {

using testing_support::CaptureStream;
using testing_support::parsePolicy;

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

using testing_support::nested;

TEST(HostilePolicy, BillionLaughsEndsAsAFatalErrorInAFewMegabytes)
{
    std::string xml = testing_support::entityBomb("policy", 10) + "<policy name=\"p\">\n<note>&l10;</note>\n</policy>";
    long before = peakKilobytes();
    auto parsed = parsePolicy(xml);
    EXPECT_TRUE(parsed.policy->getFatalParseError());
    EXPECT_EQ(parsed.policy->getFatalErrorMsg().rfind("A configuration error has occurred at line: ", 0), 0u);
    EXPECT_LT(peakKilobytes() - before, 64 * 1024);
}

TEST(HostilePolicy, ExternalEntitiesAndDtdsAreNeverRead)
{
    testing_support::TempDir dir;
    auto secret = dir.write("secret.txt", "LEAKED");
    auto dtd = dir.write("policy.dtd", "<!ATTLIST policy name CDATA \"FROM-DTD\">\n<!ENTITY inner \"FROM-DTD\">");
    std::string xml = "<?xml version=\"1.0\"?>\n<!DOCTYPE policy SYSTEM \"file://" + dtd.string() +
                      "\" [\n<!ENTITY secret SYSTEM \"file://" + secret.string() +
                      "\">\n<!ENTITY remote SYSTEM \"http://127.0.0.1:9/x\">\n]>\n"
                      "<policy><a>&secret;</a><b>&remote;</b><c>x</c></policy>";
    auto parsed = parsePolicy(xml);
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    EXPECT_EQ(parsed.policy->getName(), "");  // the external DTD's default was not applied
    EXPECT_EQ(parsed.policy->getExtraInformation(), "c=x");
    EXPECT_EQ(parsed.log.find("LEAKED"), std::string::npos);
}

// The cap counts the text as given, junk around the markup included; over it nothing is read
// (nor logged), and the policy reports the document as unreadable.
TEST(HostilePolicy, ATextOverTheSizeCapIsRefusedUnread)
{
    std::string xml = "<policy name=\"p\"><section name=\"s\"><true/></section></policy>";
    xml.resize(tvpolicy::xml::maxDocumentBytes, '\n');
    auto atCap = parsePolicy(xml);
    ASSERT_FALSE(atCap.policy->getFatalParseError()) << atCap.out;
    EXPECT_EQ(atCap.policy->getName(), "p");

    xml += '\n';
    long before = peakKilobytes();
    auto over = parsePolicy(xml);
    EXPECT_TRUE(over.policy->getFatalParseError());
    EXPECT_EQ(over.policy->getFatalErrorMsg(),
              "Unable to read policy.\r\n\r\nPlease check your personal firewall settings and try again.");
    EXPECT_EQ(over.out, "Unable to read policy");
    EXPECT_NE(over.policy->getFatalErrorReason().find(std::to_string(xml.size()) + " bytes"), std::string::npos)
        << over.policy->getFatalErrorReason();
    EXPECT_EQ(over.policy->getName(), "");
    EXPECT_TRUE(over.policy->getSections().empty());
    EXPECT_LT(over.log.size(), 1024u);
    // At most the one copy of the text that the by-value parameter makes (an instrumented
    // build keeps freed memory aside, so the copy shows there), never a parse of it.
    EXPECT_LT(peakKilobytes() - before, 24 * 1024);
}

struct DeepCase {
    std::string title;
    std::string element;
    int depth;
    std::string inner;
};

class DeepNestingTest : public testing::TestWithParam<DeepCase> {};

// 200,000 levels: refused through the fatal-error path; what was built before stays and is
// destroyed cleanly, including the open, never-placed composites.
TEST_P(DeepNestingTest, IsRefusedWithTheConfigurationError)
{
    const DeepCase& c = GetParam();
    std::string xml =
        "<policy name=\"deep\">\n<section name=\"ok\" primary=\"true\"><true/></section>\n"
        "<section name=\"deep\" primary=\"true\">\n" +
        nested(c.element, c.depth, c.inner) + "\n</section></policy>";
    auto parsed = parsePolicy(xml);
    ASSERT_TRUE(parsed.policy->getFatalParseError());
    EXPECT_EQ(parsed.policy->getFatalErrorMsg(), "A configuration error has occurred at line: 4");
    EXPECT_EQ(parsed.out, "Error,  elements are nested deeper than 1000 levels\n");
    ASSERT_EQ(parsed.policy->getSections().size(), 2u);
    CaptureStream log(std::clog);
    EXPECT_TRUE(parsed.policy->run());  // the cut-off section holds no task yet, so both pass
}

INSTANTIATE_TEST_SUITE_P(Trees, DeepNestingTest,
                         testing::Values(DeepCase{"And", "and", 200000, "<true/>"},
                                         DeepCase{"Or", "or", 200000, "<true/>"},
                                         DeepCase{"Not", "not", 200000, "<false/>"},
                                         DeepCase{"UnknownElements", "x", 200000, ""}),
                         [](const testing::TestParamInfo<DeepCase>& testCase) { return testCase.param.title; });

TEST(HostilePolicy, NestingWithinTheBoundIsEvaluated)
{
    // policy > section > 997 alternating not/and/or levels > true: 1000 elements deep.
    std::string open, close;
    const char* kinds[] = {"not", "and", "or"};
    for (int i = 0; i < 997; ++i) {
        open += std::string("<") + kinds[i % 3] + ">";
        close = std::string("</") + kinds[i % 3] + ">" + close;
    }
    auto parsed =
        parsePolicy("<policy><section name=\"s\" primary=\"true\">" + open + "<true/>" + close + "</section></policy>");
    ASSERT_FALSE(parsed.policy->getFatalParseError()) << parsed.out;
    CaptureStream log(std::clog);
    // 333 nots around a passing check, with and/or in between: an odd number of inversions fails.
    EXPECT_FALSE(parsed.policy->run());
}

TEST(HostilePolicy, TooManyAttributesAreRefused)
{
    auto parsed = parsePolicy("<policy>\n<section name=\"s\">\n<Validate" + testing_support::numberedAttributes(300) +
                              "/></section></policy>");
    ASSERT_TRUE(parsed.policy->getFatalParseError());
    EXPECT_EQ(parsed.policy->getFatalErrorMsg(), "A configuration error has occurred at line: 3");
    EXPECT_EQ(parsed.out, "Error,  an element has more than 256 attributes\n");
}

TEST(HostilePolicy, OddBytesAreAParseErrorNotACrash)
{
    // The first two end in a NUL byte too.
    for (const std::string& body :
         {std::string("<policy>\n<a>\xff\xfe\x00\x01</a></policy>\x00", 30),
          std::string("<policy>\n\x00\x00</policy>\x00", 21), std::string("<policy name=\"\xc3\x28\">\n</policy>")}) {
        auto parsed = parsePolicy(body);
        EXPECT_TRUE(parsed.policy->getFatalParseError());
    }
}

}  // namespace
