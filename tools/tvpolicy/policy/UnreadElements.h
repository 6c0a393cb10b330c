#pragma once

#include <string>
#include <vector>

#include <xercesc/sax2/DefaultHandler.hpp>

#include "policy/PolicyNotices.h"

namespace tvpolicy::cli {

/// The elements directly under <policy> or under an <option> that the policy reader does not
/// use and that carry no text (an element with text becomes a name=value extra): each is an
/// "unknown-element" notice at its line, with a suggestion when its name is close to one the
/// reader knows (<sectoin>, <Section>: did you mean <section>?). `text` is a document that
/// parsed as a policy; its other elements are the sections' business.
std::vector<Notice> unreadElements(const std::string& text);

/// Reads `text` with `handler` (with namespaces: the local names and URIs), to its end or its
/// first error; external entities and DTDs are never fetched.
void scanDocument(const std::string& text, xercesc::DefaultHandler& handler, bool namespaces = false);

/// The name of `candidates` closest to `word` (same letters in another case, or at most two
/// letters changed, added, dropped or swapped); empty when none is.
std::string closestName(const std::string& word, const std::vector<std::string>& candidates);

/// What a monitor document holds that the monitors do not evaluate: elements inside a
/// <Monitor> naming no check kind, attributes a check or <Monitor> does not read, and a
/// document without any <Monitor>; also, as notes, monitors whose outcome is inverted.
struct MonitorScan {
    std::string root;  // the outermost element's name
    unsigned monitors = 0;
    std::vector<Notice> notices;
    std::vector<Notice> notes;
};
MonitorScan scanMonitors(const std::string& text);

}  // namespace tvpolicy::cli
