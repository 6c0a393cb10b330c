#include "xml/XmlPlatform.h"

#include <mutex>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/LimitedNetAccessor.h"

namespace tvpolicy::xml {

using namespace xercesc;

void ensurePlatform()
{
    static std::once_flag once;
    std::call_once(once, [] {
        XMLPlatformUtils::Initialize();
        // URL input sources fetch through our accessor, with its limits, never the built-in one.
        delete XMLPlatformUtils::fgNetAccessor;
        XMLPlatformUtils::fgNetAccessor = new LimitedNetAccessor;
    });
}

namespace {

InputSource* emptyDocument()
{
    static const XMLByte nothing[] = {0};
    return new MemBufInputSource(nothing, 0, "empty-entity", false);
}

SecurityManager& securityManager()
{
    static SecurityManager manager;
    static const bool configured = (manager.setEntityExpansionLimit(entityExpansionLimit), true);
    (void)configured;
    return manager;
}

EmptyEntityResolver& resolver()
{
    static EmptyEntityResolver shared;
    return shared;
}

}  // namespace

InputSource* EmptyEntityResolver::resolveEntity(const XMLCh*, const XMLCh*) { return emptyDocument(); }

InputSource* EmptyEntityResolver::resolveEntity(XMLResourceIdentifier*) { return emptyDocument(); }

void harden(SAX2XMLReader& reader)
{
    reader.setFeature(XMLUni::fgXercesLoadExternalDTD, false);
    reader.setFeature(XMLUni::fgXercesDisableDefaultEntityResolution, true);
    reader.setEntityResolver(&resolver());
    reader.setProperty(XMLUni::fgXercesSecurityManager, &securityManager());
}

void harden(XercesDOMParser& parser)
{
    parser.setLoadExternalDTD(false);
    parser.setDisableDefaultEntityResolution(true);
    parser.setXMLEntityResolver(&resolver());
    parser.setSecurityManager(&securityManager());
}

}  // namespace tvpolicy::xml
