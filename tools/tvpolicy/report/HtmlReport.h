#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace tvpolicy::cli {

/// The results of a run (the JSON report, with its trace when one was taken) as one
/// self-contained HTML page for a person: the verdict and counts first, then each item with its
/// status in words and colour, its checks, help and instructions, the host facts, the warnings,
/// the switches and the trace folded away. Every text from the policy or the host is escaped;
/// only http and https instruction links become links. No script, no external resource.
std::string htmlReport(const nlohmann::ordered_json& report);

/// `text` with &, <, >, " and ' escaped for HTML.
std::string escapeHtml(const std::string& text);

}  // namespace tvpolicy::cli
