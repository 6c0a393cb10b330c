#pragma once

#include <string>
#include <vector>

#include "policy/PolicyNotices.h"

namespace tvpolicy::cli {

/// What an agent document holds that its reader does not read, as `show KIND` reads it
/// ("config", "status" or "profile"), each a notice at its line:
/// - an element the reader does not know, with a suggestion when its name is close to one it
///   knows (<loginURL>: did you mean <loginUrl>?; <ssid>: did you mean <SSID>?), and one
///   outside the agent namespace where the reader looks in it only;
/// - a second element of a name the reader takes once (the first one counts, or the last);
/// - a value the reader does not know, with what it reads instead (securityType "wpa2": the
///   profile keeps OPEN; a flag "yes": read as false).
/// The configuration and status readers find their elements anywhere in the document; the
/// profile is the first <profile> anywhere, or else the document element.
std::vector<Notice> agentDocumentNotices(const std::string& kind, const std::string& text);

}  // namespace tvpolicy::cli
