#pragma once

#include <cstddef>

namespace tvpolicy::xml {

/// The largest document any reader of the library takes: policies, included sections,
/// monitor documents and the agent's documents. A reader refuses a longer text before parsing
/// it, through its own error path; parsing holds several copies of a document in memory, so an
/// unbounded size is a way to exhaust it.
inline constexpr std::size_t maxDocumentBytes = std::size_t{16} << 20;

}  // namespace tvpolicy::xml
