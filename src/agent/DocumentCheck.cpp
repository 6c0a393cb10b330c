#include <tvpolicy/agent/DocumentCheck.h>

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNodeList.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>

#include <tvpolicy/agent/AgentSchema.h>

#include "xml/DomReader.h"
#include "xml/XmlText.h"

namespace tvpolicy {

namespace {

// Keeps the first fatal problem; warnings and recoverable errors do not make a document unreadable.
class FirstFatal : public xercesc::ErrorHandler {
public:
    void warning(const xercesc::SAXParseException&) override {}
    void error(const xercesc::SAXParseException&) override {}
    void fatalError(const xercesc::SAXParseException& problem) override
    {
        if (!seen) {
            seen = true;
            message = xml::utf8(problem.getMessage());
            location = {static_cast<std::uint64_t>(problem.getLineNumber()),
                        static_cast<std::uint64_t>(problem.getColumnNumber())};
        }
    }
    void resetErrors() override {}

    bool seen = false;
    std::string message;
    SourceLocation location;
};

}  // namespace

DocumentCheck checkDocument(const std::string& text)
{
    DocumentCheck check;
    FirstFatal errors;
    xml::DocumentPtr doc = xml::parseDocument(text, {"document", true}, errors);
    const xercesc::DOMElement* root = doc ? doc->getDocumentElement() : nullptr;
    if (root != nullptr) {
        check.rootElement = xml::utf8(root->getLocalName() != nullptr ? root->getLocalName() : root->getTagName());
        check.rootNamespace = xml::utf8(root->getNamespaceURI());
        xercesc::DOMNodeList* agent =
            doc->getElementsByTagNameNS(xml::Utf16(com::torvane::agentSchemaNamespace).get(), xml::Utf16("*").get());
        check.agentElements = agent != nullptr ? agent->getLength() : 0;
    }
    check.readable = !errors.seen && root != nullptr;
    check.problem = errors.seen ? errors.message : root == nullptr ? "the document holds no element" : "";
    check.location = errors.location;
    return check;
}

}  // namespace tvpolicy
