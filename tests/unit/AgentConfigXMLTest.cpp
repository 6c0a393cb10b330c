#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>

#include <gtest/gtest.h>

#include <functional>
#include <iostream>

#include "support/CaptureStream.h"

using com::torvane::AgentConfigXML;
using com::torvane::LoginField;

namespace {

std::string document(const std::string& body)
{
    return std::string("<config xmlns='") + com::torvane::agentSchemaNamespace + "' xmlns:o='urn:other'>" + body +
           "</config>";
}

std::shared_ptr<AgentConfigXML> parse(const std::string& text)
{
    testing_support::CaptureStream log(std::clog);
    return AgentConfigXML::parse(text);
}

void expectDefaults(const AgentConfigXML& config)
{
    for (const std::string* text :
         {&config.loginUrl, &config.message, &config.submitText, &config.username, &config.password, &config.scanUrl,
          &config.uid, &config.rescanText, &config.cancelText, &config.finishText, &config.resultsText,
          &config.successText, &config.connTestURL}) {
        EXPECT_EQ(*text, "");
    }
    EXPECT_FALSE(config.loginRequired || config.showPassedTests || config.showSuccess);
    EXPECT_TRUE(config.showIntro && config.showFinished);
    EXPECT_EQ(config.sjLoginTitle, "Network Credentials - Dissolvable Agent");
    EXPECT_EQ(config.sjLoginMessage, "Please Re-Enter Your Credentials");
    EXPECT_TRUE(config.fields.empty() && config.fieldList.empty());
}

TEST(AgentConfigXML, EmptyOrForeignTextGivesTheDefaults)
{
    expectDefaults(AgentConfigXML());
    expectDefaults(*parse(""));
    expectDefaults(*parse("<config><loginUrl>no namespace</loginUrl><showIntro>false</showIntro></config>"));
    expectDefaults(
        *parse(document("<o:loginUrl>x</o:loginUrl><o:showIntro>false</o:showIntro>"
                        "<o:field name='f'/><o:sjLoginTitle>t</o:sjLoginTitle>")));
}

struct ElementCase {
    std::string body;
    std::function<void(const AgentConfigXML&)> check;
};

class ConfigElementTest : public testing::TestWithParam<ElementCase> {};

TEST_P(ConfigElementTest, ReadsTheElement) { GetParam().check(*parse(document(GetParam().body))); }

#define CHECK(expression) [](const AgentConfigXML& c) { EXPECT_TRUE(expression); }

INSTANTIATE_TEST_SUITE_P(
    Elements, ConfigElementTest,
    testing::Values(
        // Up to showFinished the first element counts, from rescanText on the last.
        ElementCase{"<loginUrl>https://a/</loginUrl><x><loginUrl>https://b/</loginUrl></x>",
                    CHECK(c.loginUrl == "https://a/")},
        ElementCase{"<message>m1</message><message>m2</message><uid>u</uid><scanUrl>s</scanUrl>",
                    CHECK(c.message == "m1" && c.uid == "u" && c.scanUrl == "s")},
        ElementCase{"<rescanText>r1</rescanText><rescanText>r2</rescanText>", CHECK(c.rescanText == "r2")},
        ElementCase{"<sjLoginTitle>T1</sjLoginTitle><deep><sjLoginTitle>T2</sjLoginTitle></deep>",
                    CHECK(c.sjLoginTitle == "T2")},
        ElementCase{
            "<cancelText>c</cancelText><finishText>f</finishText><resultsText>r</resultsText>"
            "<successText>s</successText><connTestURL>http://t/</connTestURL><sjLoginMessage>m</sjLoginMessage>",
            CHECK(c.cancelText == "c" && c.finishText == "f" && c.resultsText == "r" && c.successText == "s" &&
                  c.connTestURL == "http://t/" && c.sjLoginMessage == "m")},
        // Flags: only the exact text "true".
        ElementCase{"<showIntro>false</showIntro><showFinished>yes</showFinished>",
                    CHECK(!c.showIntro && !c.showFinished)},
        ElementCase{"<showIntro>True</showIntro><showFinished> true</showFinished>",
                    CHECK(!c.showIntro && !c.showFinished)},
        ElementCase{
            "<loginRequired>true</loginRequired><showPassedTests>true</showPassedTests><showSuccess>true</showSuccess>",
            CHECK(c.loginRequired&& c.showPassedTests&& c.showSuccess)},
        ElementCase{"<showIntro>true</showIntro><showIntro>false</showIntro>", CHECK(c.showIntro)},
        ElementCase{"<showSuccess>true</showSuccess><showSuccess>no</showSuccess>", CHECK(!c.showSuccess)},
        // Full text content, in UTF-8.
        ElementCase{"<message>Caf\xc3\xa9 <b>bold</b><![CDATA[ <raw>]]></message>",
                    CHECK(c.message == "Caf\xc3\xa9 bold <raw>")}));

#undef CHECK

TEST(AgentConfigXML, FieldsKeepDocumentOrderAndTheMapTheLastOfAName)
{
    auto config =
        parse(document("<field name='user'><label>First</label></field>"
                       "<field name='pass'><type>PASSWORD</type></field>"
                       "<group><field name='user'><label>Second</label></field></group>"));
    ASSERT_EQ(config->fieldList.size(), 3u);
    std::vector<std::string> labels;
    for (const auto& field : config->fieldList) {
        labels.push_back(field->getName() + ":" + field->getLabel());
    }
    EXPECT_EQ(labels, (std::vector<std::string>{"user:First", "pass:", "user:Second"}));
    EXPECT_EQ(config->fields.size(), 2u);
    EXPECT_EQ(config->getField("user"), config->fieldList.back());
    EXPECT_EQ(config->getField("pass")->getType(), LoginField::PASSWORD);

    EXPECT_EQ(config->getField("User"), nullptr);
    EXPECT_EQ(config->getField("absent"), nullptr);
    EXPECT_EQ(config->fields.size(), 2u);
}

TEST(AgentConfigXML, PointerCopySharesFieldsAndSharedPointerCopyHoldsNothing)
{
    auto config =
        parse(document("<loginUrl>https://login/</loginUrl><showIntro>false</showIntro>"
                       "<field name='user'/><sjLoginTitle>T</sjLoginTitle>"));
    config->username = "alice";

    AgentConfigXML copy(config.get());
    EXPECT_EQ(copy.loginUrl, "https://login/");
    EXPECT_EQ(copy.username, "alice");
    EXPECT_EQ(copy.sjLoginTitle, "T");
    EXPECT_FALSE(copy.showIntro);
    EXPECT_EQ(copy.getField("user"), config->getField("user"));  // the same object
    EXPECT_EQ(copy.fieldList.front(), config->fieldList.front());

    AgentConfigXML hollow(config);
    EXPECT_EQ(hollow.loginUrl, "");
    EXPECT_EQ(hollow.username, "");
    EXPECT_EQ(hollow.sjLoginTitle, "");
    EXPECT_FALSE(hollow.showIntro || hollow.showFinished || hollow.loginRequired);
    EXPECT_TRUE(hollow.fields.empty() && hollow.fieldList.empty());
    EXPECT_EQ(config->fieldList.front().use_count(), 4);  // map and list of config and of copy
}

}  // namespace
