#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/ParseErrorHandler.h>
#include <tvpolicy/agent/TV_XMLTranscoder.h>

#include <gtest/gtest.h>

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNodeList.hpp>

#include <iostream>
#include <regex>

#include "support/CaptureStream.h"
#include "support/XmlText.h"
#include "xml/DomReader.h"
#include "xml/DomText.h"
#include "xml/ElementIndex.h"

using testing_support::CaptureStream;
using tvpolicy::xml::WideText;

namespace {

tvpolicy::xml::DocumentPtr parse(const std::string& text)
{
    ParseErrorHandler errors;
    return tvpolicy::xml::parseDocument(text, {"test", true}, errors);
}

struct TranscodeCase {
    const XMLCh* input;
    std::string utf8;
};

class TranscodeTest : public testing::TestWithParam<TranscodeCase> {};

TEST_P(TranscodeTest, EveryFormGivesTheSameUtf8)
{
    tvpolicy::xml::ensurePlatform();
    const TranscodeCase& c = GetParam();
    TV_XMLTranscoder transcoder("ISO-8859-1");  // the name is ignored: output is UTF-8

    char* buffer = transcoder.transcode(c.input);
    EXPECT_EQ(std::string(buffer), c.utf8);
    TV_XMLTranscoder::release(buffer);
    buffer = TV_XMLTranscoder::transcodeToUtf8(c.input);
    EXPECT_EQ(std::string(buffer), c.utf8);
    TV_XMLTranscoder::release(buffer);

    std::string out = "earlier";
    transcoder.transcodeToStdString(c.input, out);
    EXPECT_EQ(out, c.utf8);
    out = "earlier";
    TV_XMLTranscoder::transcodeToUtf8StdString(c.input, out);
    EXPECT_EQ(out, c.utf8);
}

INSTANTIATE_TEST_SUITE_P(Texts, TranscodeTest,
                         testing::Values(TranscodeCase{nullptr, ""}, TranscodeCase{u"", ""},
                                         TranscodeCase{u"plain", "plain"},
                                         TranscodeCase{u"caf\u00e9 \u20ac", "caf\xc3\xa9 \xe2\x82\xac"},
                                         TranscodeCase{u"\U0001F600", "\xf0\x9f\x98\x80"}));

TEST(TV_XMLTranscoder, ReleaseIgnoresNull) { TV_XMLTranscoder::release(nullptr); }

const std::string twoMessages =
    std::string("<r xmlns='") + com::torvane::agentSchemaNamespace +
    "' xmlns:o='urn:other'>"
    "<message>first</message><o:message>other</o:message><x><message>se<![CDATA[co]]><b>n</b>d</message></x>"
    "<o:late>outside</o:late></r>";

struct ExtractCase {
    const char* tag;
    std::string expected;  // "kept" when the earlier value survives
};

class ExtractTextTest : public testing::TestWithParam<ExtractCase> {};

TEST_P(ExtractTextTest, LastMatchInTheNamespaceWins)
{
    auto doc = parse(twoMessages);
    ASSERT_TRUE(doc);
    WideText ns(com::torvane::agentSchemaNamespace);
    TV_XMLTranscoder transcoder("UTF-8");
    std::string out = "kept";
    extractTextByTagName(doc.get(), GetParam().tag, ns, transcoder, out);
    EXPECT_EQ(out, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Tags, ExtractTextTest,
                         testing::Values(ExtractCase{"message",
                                                     "second"},        // text, CDATA and child text, second element
                                         ExtractCase{"late", "kept"},  // only outside the namespace
                                         ExtractCase{"absent", "kept"}));

TEST(TextContent, MatchesTheDomWithoutRecursing)
{
    auto doc = parse(testing_support::repeat("<e>0<!--c--><?pi x?><e>1<!--c--><?pi x?>", 100) +
                     testing_support::repeat("</e>", 200));
    ASSERT_TRUE(doc);
    auto* root = doc->getDocumentElement();
    EXPECT_EQ(tvpolicy::xml::textContent(root), tvpolicy::xml::XmlString(root->getTextContent()));
    EXPECT_EQ(tvpolicy::xml::textContent(root).size(), 200u);
}

std::string logLineOf(void (ParseErrorHandler::*report)(const xercesc::SAXParseException&))
{
    WideText message("Expected end of tag 'a'");
    WideText system("Config");
    xercesc::SAXParseException problem(message, nullptr, system, 12, 4);
    ParseErrorHandler handler;
    CaptureStream log(std::clog);
    (handler.*report)(problem);
    return log.text();
}

TEST(ParseErrorHandler, EverySeverityLogsTheSameLine)
{
    const std::regex line(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC :: Expected end of tag 'a' Line: 12Column: 4\n)");
    for (auto report : {&ParseErrorHandler::warning, &ParseErrorHandler::error, &ParseErrorHandler::fatalError}) {
        std::string logged = logLineOf(report);
        EXPECT_TRUE(std::regex_match(logged, line)) << logged;
    }
}

TEST(ParseErrorHandler, LogsWhereTheDocumentBreaks)
{
    CaptureStream log(std::clog);
    auto doc = parse("<a>\n<b>\n</a>");
    EXPECT_NE(log.text().find(" Line: 3Column: "), std::string::npos) << log.text();
}

TEST(ElementIndex, FindsWhatGetElementsByTagNameNSFinds)
{
    const std::string ns = com::torvane::agentSchemaNamespace;
    auto doc = parse(
        "<!DOCTYPE a:r [<!ENTITY inner '<a:n>in entity</a:n><a:m/>'>]>"
        "<a:r xmlns:a='" +
        ns +
        "' xmlns:o='urn:other'><a:n>1</a:n><o:n>x</o:n><n>y</n>"
        "<a:m><a:n>2</a:n>&inner;<a:k><a:n>3</a:n></a:k></a:m><a:n/></a:r>");
    ASSERT_TRUE(doc);
    WideText uri(ns.c_str());
    tvpolicy::xml::ElementIndex index(doc.get(), uri, {u"n", u"m", u"r", u"absent"});
    for (const XMLCh* name : {u"n", u"m", u"r", u"absent"}) {
        xercesc::DOMNodeList* expected = doc->getElementsByTagNameNS(uri, name);
        const auto& found = index.all(name);
        ASSERT_EQ(found.size(), expected->getLength());
        for (XMLSize_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i], expected->item(i)) << i;
        }
    }
    EXPECT_EQ(index.all(u"n").size(), 5u);
    EXPECT_EQ(index.first(u"absent"), nullptr);
    EXPECT_EQ(index.last(u"n"), index.all(u"n").back());
}

}  // namespace
