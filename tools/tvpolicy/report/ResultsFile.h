#pragma once

#include <string>

namespace tvpolicy::cli {

/// Writes `content` to `path` so that a reader sees either the old file or the whole new one:
/// a temporary file beside it, flushed to disk, then renamed over it. False, with `why` set and
/// nothing left behind, when any step fails.
bool writeFileAtomically(const std::string& path, const std::string& content, std::string& why);

}  // namespace tvpolicy::cli
