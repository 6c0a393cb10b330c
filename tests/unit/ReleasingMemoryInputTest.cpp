// A document read from memory that is handed back as the reader passes it: the reader sees
// every element of it, and the pages it has passed are gone from the text.
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include "xml/ReleasingMemoryInput.h"
#include "xml/XmlPlatform.h"

namespace {

using tvpolicy::xml::ReleasingMemoryInput;

class CountElements : public xercesc::DefaultHandler {
public:
    void startElement(const XMLCh*, const XMLCh*, const XMLCh*, const xercesc::Attributes&) override { ++elements; }
    void fatalError(const xercesc::SAXParseException&) override { ++errors; }
    std::size_t elements = 0;
    int errors = 0;
};

struct Case {
    const char* title;
    std::size_t elements;
    bool handedBack;  // whether the middle of the text is expected to be gone
};

class ReleasingMemoryInputTest : public testing::TestWithParam<Case> {};

TEST_P(ReleasingMemoryInputTest, TheReaderSeesItAllAndWhatItPassedIsHandedBack)
{
    tvpolicy::xml::ensurePlatform();
    std::string text = "<root>";
    for (std::size_t i = 1; i < GetParam().elements; ++i) {
        text += "<item name=\"" + std::to_string(i) + "\">some text of the item</item>\n";
    }
    text += "</root>";
    std::size_t middle = text.size() / 2;
    char before = text[middle];

    std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
    tvpolicy::xml::harden(*reader);
    CountElements handler;
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    ReleasingMemoryInput source(text, "test");
    reader->parse(source);

    EXPECT_EQ(handler.errors, 0);
    EXPECT_EQ(handler.elements, GetParam().elements);
#ifdef __linux__
    EXPECT_EQ(text[middle], GetParam().handedBack ? '\0' : before);
#endif
}

INSTANTIATE_TEST_SUITE_P(Sizes, ReleasingMemoryInputTest,
                         testing::Values(Case{"One", 1, false},              // shorter than a page
                                         Case{"UnderOneStep", 2000, false},  // about 100 KB: nothing handed back
                                         Case{"ManySteps", 60000, true}),    // about 3 MB
                         [](const testing::TestParamInfo<Case>& testCase) { return testCase.param.title; });

}  // namespace
