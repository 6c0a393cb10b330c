#include "xml/DomReader.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/XMLException.hpp>

#include "xml/DomText.h"

namespace tvpolicy::xml {

using namespace xercesc;

namespace {

/// Thrown from inside the parse to abandon a document over the limits; carries where it was.
struct LimitExceeded {
    const char* what;
    XMLFileLoc line;
    XMLFileLoc column;
};

/// A DOM parser that counts the depth of open elements and the attributes of each start tag as
/// the scanner reports them, and abandons the parse once a limit is passed.
class BoundedDomParser : public XercesDOMParser {
public:
    void startElement(const XMLElementDecl& decl, const unsigned int urlId, const XMLCh* const prefix,
                      const RefVectorOf<XMLAttr>& attributes, const XMLSize_t attributeCount, const bool isEmpty,
                      const bool isRoot) override
    {
        if (attributeCount > maxAttributesPerElement) {
            abandon("Element carries too many attributes");
        }
        if (++depth_ > maxElementDepth) {
            abandon("Elements nested too deeply");
        }
        // For an empty element the base reports the end itself, through endElement below.
        XercesDOMParser::startElement(decl, urlId, prefix, attributes, attributeCount, isEmpty, isRoot);
    }

    void endElement(const XMLElementDecl& decl, const unsigned int urlId, const bool isRoot,
                    const XMLCh* const prefix) override
    {
        --depth_;
        XercesDOMParser::endElement(decl, urlId, isRoot, prefix);
    }

    void resetDocument() override
    {
        depth_ = 0;
        XercesDOMParser::resetDocument();
    }

private:
    [[noreturn]] void abandon(const char* what) const
    {
        const Locator* where = getScanner()->getLocator();
        throw LimitExceeded{what, where != nullptr ? where->getLineNumber() : 0,
                            where != nullptr ? where->getColumnNumber() : 0};
    }

    unsigned depth_ = 0;
};

void report(ErrorHandler& errors, const char* message, const char* systemId, XMLFileLoc line, XMLFileLoc column)
{
    WideText text(message);
    WideText id(systemId);
    SAXParseException problem(text, nullptr, id, line, column);
    errors.fatalError(problem);
}

}  // namespace

DocumentPtr parseDocument(const std::string& text, const DomSettings& settings, ErrorHandler& errors)
{
    ensurePlatform();
    if (text.size() > maxDocumentBytes) {
        std::string why = "Document is larger than " + std::to_string(maxDocumentBytes) + " bytes";
        report(errors, why.c_str(), settings.systemId, 0, 0);
        return nullptr;
    }
    BoundedDomParser parser;
    parser.setValidationScheme(XercesDOMParser::Val_Auto);
    parser.setDoNamespaces(settings.namespaces);
    parser.setDoSchema(false);
    parser.setValidationSchemaFullChecking(false);
    parser.setErrorHandler(&errors);
    harden(parser);

    MemBufInputSource input(reinterpret_cast<const XMLByte*>(text.data()), text.size(), settings.systemId, false);
    try {
        parser.parse(input);
    } catch (const LimitExceeded& limit) {
        report(errors, limit.what, settings.systemId, limit.line, limit.column);
        return nullptr;
    } catch (const SAXException&) {
        // The handler gave up on the document; it has been told already.
        return nullptr;
    } catch (const XMLException& problem) {
        report(errors, nativeText(problem.getMessage()).c_str(), settings.systemId, 0, 0);
        return nullptr;
    } catch (const DOMException& problem) {
        report(errors, nativeText(problem.getMessage()).c_str(), settings.systemId, 0, 0);
        return nullptr;
    }
    return DocumentPtr(parser.adoptDocument());
}

}  // namespace tvpolicy::xml
