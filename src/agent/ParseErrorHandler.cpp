#include <tvpolicy/agent/ParseErrorHandler.h>

#include <iostream>

#include <tvpolicy/host/Timestamp.h>

#include "xml/DomText.h"

using namespace xercesc;

namespace {

// No blank between the line number and "Column: ": the log format is kept as it always was.
void logProblem(const SAXParseException& problem)
{
    tvi::tslog(std::clog) << tvpolicy::xml::nativeText(problem.getMessage()) << " Line: "
                          << problem.getLineNumber() << "Column: " << problem.getColumnNumber()
                          << std::endl;
}

}  // namespace

void ParseErrorHandler::warning(const SAXParseException& problem) { logProblem(problem); }

void ParseErrorHandler::error(const SAXParseException& problem) { logProblem(problem); }

void ParseErrorHandler::fatalError(const SAXParseException& problem) { logProblem(problem); }
