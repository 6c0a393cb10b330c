#pragma once

#include <functional>

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>

namespace tvpolicy::policy {

/// Parses `source` one markup at a time, so that a handler can end the parse (by making `stop`
/// true) without throwing through the reader.
void parseProgressively(xercesc::SAX2XMLReader& reader, const xercesc::InputSource& source,
                        const std::function<bool()>& stop);

}  // namespace tvpolicy::policy
