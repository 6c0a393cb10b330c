#pragma once

#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/SAXParseException.hpp>

#include <tvpolicy/export.h>

/// Logs every problem the XML parser reports as one timestamped line on std::clog:
/// "<message> Line: <line>Column: <column>" (the same line for every severity). Never throws,
/// so the parse goes on as far as the parser can take it.
class TVPOLICY_API ParseErrorHandler : public xercesc::HandlerBase {
public:
    void warning(const xercesc::SAXParseException& problem) override;
    void error(const xercesc::SAXParseException& problem) override;
    void fatalError(const xercesc::SAXParseException& problem) override;
};
