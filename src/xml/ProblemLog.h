#pragma once

#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/SAXParseException.hpp>

namespace tvpolicy::xml {

/// Logs one problem the XML parser reports as a timestamped line on std::clog:
/// "<message> Line: <line>Column: <column>".
void logParseProblem(const xercesc::SAXParseException& problem);

/// An error handler that logs every problem, whatever its severity, and never throws, so the
/// parse goes on as far as the parser can take it.
class LoggingErrorHandler : public xercesc::HandlerBase {
public:
    void warning(const xercesc::SAXParseException& problem) override { logParseProblem(problem); }
    void error(const xercesc::SAXParseException& problem) override { logParseProblem(problem); }
    void fatalError(const xercesc::SAXParseException& problem) override { logParseProblem(problem); }
};

}  // namespace tvpolicy::xml
