// What a parsed policy tells about its own document: where each check came from, what was
// passed over, which section an announcement is about, and why a document or include failed.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include <tvpolicy/agent/DocumentCheck.h>
#include <tvpolicy/checks/VersionEvidence.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskMap.h>

#include "support/PolicyText.h"
#include "xml/XmlPlatform.h"

namespace {

using testing_support::parsePolicy;

Section& onlySection(Policy& policy)
{
    EXPECT_EQ(policy.getSections().size(), 1u);
    return *policy.getSections().begin()->second;
}

TEST(PolicySource, ChecksKeepTheirElementAttributesAndLine)
{
    auto parsed = parsePolicy(
        "<policy name=\"p\">\n"
        "<section name=\"s\" primary=\"true\">\n"
        "<File fileName=\"passwd\" startpath=\"/etc\"/>\n"
        "<or>\n"
        "  <ProcessExists procName=\"sshd\" proc=\"x\"/>\n"
        "  <not><true/></not>\n"
        "</or>\n"
        "</section>\n</policy>\n");
    Section& section = onlySection(*parsed.policy);
    EXPECT_EQ(section.getLocation().line, 2u);
    ASSERT_EQ(section.getTasks().size(), 2u);
    const tvpolicy::TaskSource* file = section.getTaskSource(section.getTasks().front());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->element, "File");
    EXPECT_EQ(file->location.line, 3u);
    EXPECT_EQ(file->attributes,
              (std::vector<std::pair<std::string, std::string>>{{"fileName", "passwd"}, {"startpath", "/etc"}}));
    EXPECT_EQ(file->unknownAttributes, std::vector<std::string>{"startpath"});  // names are case-sensitive

    Task* orTerm = section.getTasks().back();
    std::vector<Task*> terms(orTerm->getTerms()->begin(), orTerm->getTerms()->end());
    ASSERT_EQ(terms.size(), 2u);
    const tvpolicy::TaskSource* process = section.getTaskSource(terms[0]);
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(process->location.line, 5u);
    EXPECT_EQ(process->unknownAttributes, std::vector<std::string>{"proc"});
    EXPECT_EQ(section.getTaskSource(terms[1])->element, "not");
    EXPECT_TRUE(section.getIgnoredElements().empty());
}

TEST(PolicySource, ElementsNamingNoKindArePassedOverAndRecorded)
{
    auto parsed = parsePolicy(
        "<policy name=\"p\">\n<section name=\"s\" primary=\"true\">\n"
        "<file fileName=\"passwd\"/>\n<Firewall><true/></Firewall>\n</section>\n</policy>\n");
    Section& section = onlySection(*parsed.policy);
    ASSERT_EQ(section.getIgnoredElements().size(), 2u);
    EXPECT_EQ(section.getIgnoredElements()[0].element, "file");
    EXPECT_EQ(section.getIgnoredElements()[0].location.line, 3u);
    EXPECT_EQ(section.getIgnoredElements()[1].element, "Firewall");
    EXPECT_EQ(section.getTasks().size(), 1u);  // the true inside the unknown element still counts
}

// Every registered kind says which attributes it reads, so no real attribute is ever reported
// as unknown and no kind is missing from `tvpolicy tasks`.
TEST(PolicySource, EveryRegisteredKindIsDescribed)
{
    const TaskMap& map = TaskFactory::getMap();
    for (std::size_t i = 0; i < map.size(); ++i) {
        EXPECT_NE(tvpolicy::TaskCatalog::attributesOf(map.entry(i).name), nullptr) << map.entry(i).name;
    }
    EXPECT_TRUE(tvpolicy::TaskCatalog::reads("VersionFromReceiptTask", "pkg"));
    EXPECT_TRUE(tvpolicy::TaskCatalog::reads("AvastVersionTask", "operation"));
    EXPECT_FALSE(tvpolicy::TaskCatalog::reads("FileTask", "filename"));
    EXPECT_FALSE(tvpolicy::TaskCatalog::reads("NoSuchTask", "x"));
}

struct RootCase {
    std::string xml;
    std::string root;
    bool fatal;
};

class PolicyRootTest : public testing::TestWithParam<RootCase> {};

TEST_P(PolicyRootTest, TellsTheRootAndWhyAParseFailed)
{
    auto parsed = parsePolicy(GetParam().xml);
    EXPECT_EQ(parsed.policy->getRootElement(), GetParam().root);
    EXPECT_EQ(parsed.policy->getFatalParseError(), GetParam().fatal);
    EXPECT_EQ(parsed.policy->getFatalErrorReason().empty(), !GetParam().fatal);
    if (GetParam().fatal) {
        EXPECT_GT(parsed.policy->getFatalErrorLocation().line, 0u);
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, PolicyRootTest,
                         testing::Values(RootCase{"<policy name=\"p\"/>", "policy", false},
                                         RootCase{"<html><body>502</body></html>", "html", false},
                                         RootCase{"<monitors><Monitor id=\"a\"/></monitors>", "monitors", false},
                                         RootCase{"<policy>\n<section name=\"s\">\n</policy>", "policy", true},
                                         RootCase{"\x01\x02<\xff\xfe>", "", true}));

// The announcement of a passed-over secondary is empty, as the agent expects; the policy says
// which section it is about while the slots run.
TEST(PolicySource, AnnouncementsNameTheirSection)
{
    auto parsed = parsePolicy(
        "<policy name=\"p\">"
        "<section name=\"primary\" group=\"g\" primary=\"true\"><false/></section>"
        "<section name=\"secondary\" group=\"g\"><true/></section>"
        "<option name=\"o\" type=\"ANY\">"
        "<section name=\"inner\" group=\"h\" primary=\"true\"><false/></section>"
        "<section name=\"inner secondary\" group=\"h\"><true/></section></option></policy>");
    Policy& policy = *parsed.policy;
    std::vector<std::string> seen;
    policy.connect([&](std::shared_ptr<std::string> name) {
        const Section* section = policy.getAnnouncedSection();
        seen.push_back("'" + *name + "' " + (section != nullptr ? section->getName() : "(end)"));
    });
    policy.run();
    EXPECT_EQ(seen, (std::vector<std::string>{"'inner' inner", "'' inner secondary", "'primary' primary",
                                              "'' secondary", "'' (end)"}));
    EXPECT_EQ(policy.getAnnouncedSection(), nullptr);
}

TEST(PolicySource, VersionChecksKeepWhatTheyCompared)
{
    tvpolicy::DescribedHostProbe host;
    host.productVersion = "10.4.11";
    tvpolicy::ScopedHost scope(host);
    std::unique_ptr<Task> task(TaskFactory::createTask("MacOSXVersionTask"));
    for (Task::Attribute attribute :
         std::vector<Task::Attribute>{{"major", "10"}, {"minor", "6"}, {"micro", "8"}, {"operation", "gte"}}) {
        task->setAttribute(&attribute);
    }
    auto* evidence = dynamic_cast<tvpolicy::VersionEvidence*>(task.get());
    ASSERT_NE(evidence, nullptr);
    EXPECT_EQ(evidence->lastRequiredVersion(), "");  // nothing compared yet
    std::unique_ptr<TaskResponse> response(task->perform());
    EXPECT_FALSE(response->passed);
    EXPECT_EQ(evidence->lastFoundVersion(), "10.4.11");
    EXPECT_EQ(evidence->lastRequiredVersion(), "10.6.8");
    EXPECT_EQ(evidence->lastOperation(), "gte");
    EXPECT_EQ(response->message, "");  // the check's own response is unchanged
}

struct DocumentCase {
    std::string title;
    std::string text;
    bool readable;
    std::string root;
    std::size_t agentElements;
};

class DocumentCheckTest : public testing::TestWithParam<DocumentCase> {};

TEST_P(DocumentCheckTest, ReadsLikeTheAgentsReaders)
{
    tvpolicy::DocumentCheck check = tvpolicy::checkDocument(GetParam().text);
    EXPECT_EQ(check.readable, GetParam().readable) << check.problem;
    EXPECT_EQ(check.rootElement, GetParam().root);
    EXPECT_EQ(check.agentElements, GetParam().agentElements);
    EXPECT_EQ(check.problem.empty(), GetParam().readable);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, DocumentCheckTest,
    testing::Values(
        DocumentCase{"Agent", "<agentStatus xmlns=\"urn:torvane:agent:1\"><status>SUCCESS</status></agentStatus>", true,
                     "agentStatus", 2},
        DocumentCase{"OtherNamespace", "<a:x xmlns:a=\"urn:other\"><a:y/></a:x>", true, "x", 0},
        DocumentCase{"NoNamespace", "<monitors><Monitor/></monitors>", true, "monitors", 0},
        DocumentCase{"Empty", "", false, "", 0},
        DocumentCase{"CutShort", "<agentStatus xmlns=\"urn:torvane:agent:1\"><status>", false, "agentStatus", 2},
        DocumentCase{"Binary", std::string("\0\x01<\xff", 4), false, "", 0}),
    [](const testing::TestParamInfo<DocumentCase>& testCase) { return testCase.param.title; });

// An include that cannot be read ends the process; an embedder's handler learns why first and
// may end it its own way.
TEST(PolicySourceDeathTest, IncludeFailureReachesTheHandler)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            Section::setReadFailureHandler([](const std::string& url, const std::string& reason) {
                std::fprintf(stderr, "handler: %s: %s\n", url.c_str(), reason.c_str());
                std::_Exit(7);
            });
            tvpolicy::xml::ensurePlatform();
            Section include(std::string("ftp://example.test/s.xml"));
            std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
            include.parse(reader.get());
        },
        testing::ExitedWithCode(7), "handler: ftp://example.test/s.xml: only http and https addresses are read");
    EXPECT_EXIT(
        {
            tvpolicy::xml::ensurePlatform();
            Section include(std::string("ftp://example.test/s.xml"));
            std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
            include.parse(reader.get());
        },
        testing::ExitedWithCode(1), "");
}

}  // namespace
