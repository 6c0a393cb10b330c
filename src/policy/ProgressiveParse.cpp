#include "policy/ProgressiveParse.h"

#include <xercesc/framework/XMLPScanToken.hpp>

namespace tvpolicy::policy {

void parseProgressively(xercesc::SAX2XMLReader& reader, const xercesc::InputSource& source,
                        const std::function<bool()>& stop)
{
    xercesc::XMLPScanToken token;
    if (!reader.parseFirst(source, token)) {
        return;
    }
    while (!stop() && reader.parseNext(token)) {
    }
    reader.parseReset(token);
}

}  // namespace tvpolicy::policy
