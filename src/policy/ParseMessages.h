#pragma once

#include <cstdio>

#include <xercesc/sax/SAXParseException.hpp>

#include "base/LogLine.h"

namespace tvpolicy::policy {

/// The parser's notice of a warning ("warn") or a recoverable error ("err") on standard
/// output: the word and the line number.
inline void printParseNotice(const char* word, const xercesc::SAXParseException& exception)
{
    tvi::flushLogBatch();
    std::printf("%s %d", word, static_cast<int>(exception.getLineNumber()));
    std::fflush(stdout);
}

}  // namespace tvpolicy::policy
