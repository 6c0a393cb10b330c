// Documents from the network are hostile: every reader must survive them with its defaults and a
// logged error, without reading local files, fetching anything, or running out of stack or time.
#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/agent/ParseErrorHandler.h>
#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/checks/Monitor.h>

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "support/CaptureStream.h"
#include "support/TempDir.h"
#include "support/XmlText.h"
#include "xml/DomReader.h"

using testing_support::CaptureStream;

namespace {

const std::string ns = com::torvane::agentSchemaNamespace;

using testing_support::repeat;

std::string nested(int depth) { return testing_support::nested("e", depth, "x"); }
std::string withAttributes(int count) { return "<e" + testing_support::numberedAttributes(count) + "/>"; }
std::string billionLaughs()
{
    return testing_support::entityBomb("r", 9) + "<r xmlns='" + ns + "'><junk>&l9;</junk></r>";
}

struct LimitCase {
    std::string name;
    std::string text;
    bool kept;    // the parse gives a document with a root element
    bool logged;  // an error is logged
};

class DocumentLimitTest : public testing::TestWithParam<LimitCase> {};

TEST_P(DocumentLimitTest, RefusesOnlyWhatPassesTheLimits)
{
    const LimitCase& c = GetParam();
    for (bool namespaces : {true, false}) {
        ParseErrorHandler errors;
        CaptureStream log(std::clog);
        auto doc = tvpolicy::xml::parseDocument(c.text, {"limits", namespaces}, errors);
        EXPECT_EQ(doc != nullptr && doc->getDocumentElement() != nullptr, c.kept) << c.name;
        EXPECT_EQ(!log.text().empty(), c.logged) << c.name << ": " << log.text();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Limits, DocumentLimitTest,
    testing::Values(
        LimitCase{"at the depth limit", nested(tvpolicy::xml::maxElementDepth), true, false},
        LimitCase{"one deeper", nested(tvpolicy::xml::maxElementDepth + 1), false, true},
        LimitCase{"100000 deep", nested(100000), false, true},
        LimitCase{"deep through an entity", "<!DOCTYPE e [<!ENTITY d '" + nested(300) + "'>]><e>&d;</e>", false, true},
        LimitCase{"many empty siblings", "<e>" + repeat("<e/>", 5000) + "</e>", true, false},
        LimitCase{"attributes at the limit", withAttributes(tvpolicy::xml::maxAttributesPerElement), true, false},
        LimitCase{"one attribute more", withAttributes(tvpolicy::xml::maxAttributesPerElement + 1), false, true},
        // Expansion stops at the limit; what was read before the fatal error stays.
        LimitCase{"billion laughs", billionLaughs(), true, true}),
    [](const auto& testCase) {
        std::string n = testCase.param.name;
        for (char& ch : n)
            if (!isalnum(ch))
                ch = '_';
        return n;
    });

TEST(HostileDocument, ReadersFallBackToTheirDefaults)
{
    for (const std::string& text : {nested(100000), billionLaughs(), std::string("\xff\xfe\x00<r", 5), std::string("<"),
                                    std::string(""), std::string("\x01\x02 not xml")}) {
        CaptureStream log(std::clog);
        auto config = com::torvane::AgentConfigXML::parse(text);
        ASSERT_TRUE(config);
        EXPECT_EQ(config->loginUrl, "");
        EXPECT_EQ(config->sjLoginTitle, "Network Credentials - Dissolvable Agent");
        EXPECT_TRUE(config->showIntro);
        auto status = com::torvane::AgentStatusXML::parse(text);
        ASSERT_TRUE(status);
        EXPECT_EQ(status->getStatus(), com::torvane::AgentStatusXML::ERROR);
        EXPECT_FALSE(log.text().empty()) << "no error logged";

        CaptureStream errors(std::cerr);
        std::unique_ptr<std::list<com::torvane::policy::Monitor*>> monitors(
            com::torvane::policy::Monitor::parseMonitors(text));
        EXPECT_TRUE(monitors->empty());
    }
}

struct Reader {
    std::string name;
    std::string document;
    std::function<bool(const std::string&)> reads;  // whether the text's content came through
};

// Each reader takes a document padded to the size cap (blanks after the root element) and
// refuses it one byte longer, as it refuses a broken document: with an error line and its
// defaults.
TEST(HostileDocument, EveryReaderRefusesATextOverTheSizeCap)
{
    using namespace com::torvane;
    const std::vector<Reader> readers = {
        {"configuration", "<c xmlns='" + ns + "'><loginUrl>u</loginUrl></c>",
         [](const std::string& text) { return AgentConfigXML::parse(text)->loginUrl == "u"; }},
        {"status", "<r xmlns='" + ns + "'><status>NEEDS_SCAN</status></r>",
         [](const std::string& text) {
             return AgentStatusXML::parse(text)->getStatus() == AgentStatusXML::NEEDS_SCAN;
         }},
        {"login field", "<field xmlns='" + ns + "' name='f'/>",
         [](const std::string& text) {
             auto field = LoginField::parse(text);
             return field && field->getName() == "f";
         }},
        {"profile", "<profile xmlns='" + ns + "'><SSID>s</SSID></profile>",
         [](const std::string& text) {
             auto profile = WifiConfigurationProfile::parse(text);
             return profile && profile->getSSID() == "s";
         }},
        {"monitor document", "<m><Monitor id='m'/></m>",
         [](const std::string& text) {
             std::unique_ptr<std::list<policy::Monitor*>> monitors(policy::Monitor::parseMonitors(text));
             bool one = monitors->size() == 1;
             for (auto* monitor : *monitors) {
                 delete monitor;
             }
             return one;
         }},
        {"monitor", "<Monitor id='m'/>", [](const std::string& text) { return policy::Monitor(text).getID() == "m"; }},
    };
    for (const Reader& reader : readers) {
        std::string text = reader.document;
        text.resize(tvpolicy::xml::maxDocumentBytes, ' ');
        CaptureStream log(std::clog);
        CaptureStream errors(std::cerr);
        EXPECT_TRUE(reader.reads(text)) << reader.name;
        EXPECT_EQ(log.text() + errors.text(), "") << reader.name;
        text += ' ';
        EXPECT_FALSE(reader.reads(text)) << reader.name;
        EXPECT_NE((log.text() + errors.text()).find("Document is larger than 16777216 bytes"), std::string::npos)
            << reader.name;
    }
}

TEST(HostileDocument, NoExternalEntityOrDtdIsRead)
{
    testing_support::TempDir dir;
    auto secret = dir.write("secret.txt", "TOP-SECRET");
    std::string text = "<!DOCTYPE r SYSTEM 'http://127.0.0.1:9/never.dtd' [<!ENTITY s SYSTEM 'file://" +
                       secret.string() + "'>]><r xmlns='" + ns + "'><loginUrl>[&s;]</loginUrl><uid>u1</uid></r>";
    CaptureStream log(std::clog);
    auto config = com::torvane::AgentConfigXML::parse(text);
    EXPECT_EQ(config->loginUrl, "[]");
    EXPECT_EQ(config->uid, "u1");
}

}  // namespace
