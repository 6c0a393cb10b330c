#pragma once

#include <string>

#include <xercesc/sax/ErrorHandler.hpp>

#include "xml/DocumentLimits.h"
#include "xml/XmlPlatform.h"

// The one way the library builds a DOM tree from a document's text.
namespace tvpolicy::xml {

/// Deepest element nesting a document may have. Deeper documents are refused while they are
/// read: the parser's namespace handling slows down sharply with depth and the DOM's own text
/// functions recurse, so an unbounded depth is a way to stall or crash the reader.
inline constexpr unsigned maxElementDepth = 256;
/// Most attributes (namespace declarations included) one element may carry.
inline constexpr unsigned maxAttributesPerElement = 256;

struct DomSettings {
    const char* systemId;  // names the document in error messages
    bool namespaces;       // namespace processing on or off
};

/// Parses `text` with validation scheme "auto", schema processing off, the hardening of
/// XmlPlatform.h and the limits above. A text longer than maxDocumentBytes is not parsed.
/// Problems go to `errors` (warnings, errors and fatal
/// errors alike); the parser stops at the first fatal error and the document holds what was read
/// until then. A document over the limits is reported to `errors` as a fatal error and gives
/// null, as does a parse that fails outright. Initialises the XML platform when needed.
DocumentPtr parseDocument(const std::string& text, const DomSettings& settings, xercesc::ErrorHandler& errors);

}  // namespace tvpolicy::xml
