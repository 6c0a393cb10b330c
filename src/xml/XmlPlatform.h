#pragma once

#include <memory>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLEntityResolver.hpp>

// Shared set-up of the XML parser for every document the library reads. Documents come from
// the network and are hostile until parsed: no external entity or DTD is ever read or fetched,
// and entity expansion is bounded.
namespace tvpolicy::xml {

/// Initialises the XML platform once per process, safely from any number of threads. It stays
/// initialised until the process exits. Call before creating any parser or transcoder.
void ensurePlatform();

/// Most entity expansions a document may make before its parse ends with a fatal error.
constexpr unsigned entityExpansionLimit = 1000;

/// Answers every request for an external entity or DTD with an empty document, so the parse
/// goes on without reading or fetching anything.
class EmptyEntityResolver : public xercesc::EntityResolver, public xercesc::XMLEntityResolver {
public:
    xercesc::InputSource* resolveEntity(const XMLCh* publicId, const XMLCh* systemId) override;
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* resource) override;
};

/// Applies the rules above to a SAX2 reader (resolver, security manager, no external DTD).
void harden(xercesc::SAX2XMLReader& reader);
/// Applies the rules above to a DOM parser.
void harden(xercesc::XercesDOMParser& parser);

/// Owning pointers for Xerces objects that are given back with release().
struct Releaser {
    template <typename T>
    void operator()(T* object) const
    {
        if (object != nullptr) {
            object->release();
        }
    }
};
using DocumentPtr = std::unique_ptr<xercesc::DOMDocument, Releaser>;

}  // namespace tvpolicy::xml
