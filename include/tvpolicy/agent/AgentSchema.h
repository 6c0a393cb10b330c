#pragma once

namespace com::torvane {

/// The namespace of every agent document (configuration, status reply, login field, Wi-Fi
/// profile). Elements in any other namespace, or in none, are not read.
inline constexpr const char* agentSchemaNamespace = "urn:torvane:agent:1";

}  // namespace com::torvane
