#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

class Policy;

namespace cli {

/// The outcome of a policy run as one JSON document (the schema is in the README): every
/// top-level item with its sections, statuses, task outcomes, help and instructions; counts
/// and the overall result.
nlohmann::ordered_json reportPolicy(Policy& policy, bool passed, unsigned announced);

/// The same report for a person: one block per item, then PASS or FAIL with the counts.
void printReport(const nlohmann::ordered_json& report, std::ostream& out);

/// The words for a section status number.
std::string statusText(unsigned status);

}  // namespace cli
