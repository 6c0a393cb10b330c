// The peer of parse_policy_file: reads the same file into a string and parses it with the XML
// library's SAX2 reader into an empty handler, with namespaces off and no DTD loaded, as the
// policy's reader is set up. Exit 0 when the document is well formed.
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "ReadWholeFile.h"

using namespace xercesc;

namespace {

class CountErrors : public DefaultHandler {
public:
    void fatalError(const SAXParseException&) override { ++errors; }
    int errors = 0;
};

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: bare_sax_parse FILE\n";
        return 2;
    }
    std::string xml = bench::readWholeFile(argv[1]);
    XMLPlatformUtils::Initialize();
    int errors = 0;
    {
        std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader());
        reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, false);
        reader->setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, false);
        reader->setFeature(XMLUni::fgXercesLoadExternalDTD, false);
        CountErrors handler;
        reader->setContentHandler(&handler);
        reader->setErrorHandler(&handler);
        MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "policy", false);
        reader->parse(source);
        errors = handler.errors;
    }
    XMLPlatformUtils::Terminate();
    return errors == 0 ? 0 : 1;
}
