#pragma once

#include <functional>
#include <string>
#include <vector>

class Policy;
class Section;
class Task;

namespace tvpolicy::cli {

/// Calls `visit` for every section of `policy` in key order, the sections of options
/// included (after their option), options themselves not.
void forEachSection(Policy& policy, const std::function<void(const std::string& key, Section& section)>& visit);

/// The nested terms of a composite task in order; empty for any other kind.
std::vector<Task*> termsOf(Task& task);

/// The name to show for a section: its own, or for an included section without one its key
/// (the include's id).
std::string shownName(const std::string& key, const Section& section);

}  // namespace tvpolicy::cli
