#include "xml/ProblemLog.h"

#include <iostream>

#include <tvpolicy/base/Timestamp.h>

#include "base/LogLine.h"
#include "xml/DomText.h"

namespace tvpolicy::xml {

// No blank between the line number and "Column: ": the log format is kept as it always was.
void logParseProblem(const xercesc::SAXParseException& problem)
{
    tvi::LogLine(std::clog) << nativeText(problem.getMessage()) << " Line: " << problem.getLineNumber()
                            << "Column: " << problem.getColumnNumber();
}

}  // namespace tvpolicy::xml
