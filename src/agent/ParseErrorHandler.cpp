#include <tvpolicy/agent/ParseErrorHandler.h>

#include "xml/ProblemLog.h"

using tvpolicy::xml::logParseProblem;

void ParseErrorHandler::warning(const xercesc::SAXParseException& problem) { logParseProblem(problem); }

void ParseErrorHandler::error(const xercesc::SAXParseException& problem) { logParseProblem(problem); }

void ParseErrorHandler::fatalError(const xercesc::SAXParseException& problem) { logParseProblem(problem); }
