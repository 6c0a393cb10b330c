#pragma once

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "policy/PolicyNotices.h"
#include "process/CommandHost.h"

class Policy;

namespace tvpolicy::cli {

/// The outcome of a policy run as one JSON document (the schema is in the README): every
/// top-level item with its sections, statuses and checks (each with its element, attributes
/// and line, and for version checks the versions compared), help and instructions; the
/// policy's switches, the warnings, counts and the overall result.
nlohmann::ordered_json reportPolicy(Policy& policy, bool passed, unsigned announced,
                                    const std::vector<Notice>& notices);

/// Adds a "cause" to every VersionFromScript check of `report` whose script timed out.
void explainTimeouts(nlohmann::ordered_json& report, const std::vector<CommandTimeout>& timeouts);

/// How the report is shown to a person.
struct TextStyle {
    bool colour = false;
    /// Each term of an and, or or not with its outcome (passed, failed, not run), not only its
    /// element.
    bool termOutcomes = false;
};

/// The "run" object of the results: this program and library, when the run started and how
/// long it took (until now from `clock`), and the computer it ran on.
nlohmann::ordered_json runRecord(std::chrono::system_clock::time_point started,
                                 std::chrono::steady_clock::time_point clock);

/// `when` as an ISO 8601 UTC time to the second ("2024-05-01T12:00:00Z").
std::string isoTime(std::chrono::system_clock::time_point when);

/// The same report for a person: one block per item, the switches, then PASS or FAIL with the
/// counts and what was not evaluated.
void printReport(const nlohmann::ordered_json& report, std::ostream& out, const TextStyle& style);

/// The last line of printReport: Policy "name": PASS (... of N sections)
std::string verdictLine(const nlohmann::ordered_json& report, const TextStyle& style);

/// A check of the report as its policy wrote it: the element and its attributes
/// (File fileName="passwd" startPath="/etc").
std::string checkLabel(const nlohmann::ordered_json& task);

/// What a version check compared (found "2.4.1", required gte "3.0"), or what a posture check
/// found when its message does not say it already; empty for other checks.
std::string comparedVersions(const nlohmann::ordered_json& task);

/// The words for a section status number.
std::string statusText(unsigned status);

}  // namespace tvpolicy::cli
