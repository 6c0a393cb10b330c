#pragma once

#include <list>
#include <map>
#include <string>
#include <vector>

#include <tvpolicy/export.h>

/// Writes "Debug: <message>" as a timestamped line to std::clog. The context is ignored.
TVPOLICY_API void debug(std::string message, std::string context);

/// Appends to `tokens` every maximal run of characters not in `delimiters`. Runs of
/// delimiters collapse; no empty token is produced; `tokens` is not cleared first.
TVPOLICY_API void split(std::string& text, std::string& delimiters, std::list<std::string>& tokens);
TVPOLICY_API void split(std::string& text, std::string& delimiters, std::vector<std::string>& tokens);

/// Splits "scheme://host:port/a/b" on "/" and ":" into parts["host"], parts["port"] and
/// parts["page"] ("/a/b"). Parts the URL lacks are set empty.
TVPOLICY_API void splitURL(std::string& url, std::map<std::string, std::string>& parts);

/// Percent-encodes the characters %, CR, LF, blank and "#&,./:;<=>? — never the first character.
TVPOLICY_API std::string urlencode(std::string text);

/// Runs `command` through the shell and returns all it wrote to standard output, read through
/// a buffer of `bufferSize` bytes. An empty command starts nothing and returns "".
TVPOLICY_API std::string getOutputFromCommand(std::string command, unsigned long bufferSize);

/// Runs `command` through the shell; returns the status of std::system.
TVPOLICY_API int runCommand(std::string command);

/// Upper-cases the hexadecimal letters a-f in place; nothing else changes.
TVPOLICY_API void normalizeMAC(std::string& mac);

/// The agent identifier generated on this platform: always empty (none is generated).
TVPOLICY_API std::string generateAgentId();
