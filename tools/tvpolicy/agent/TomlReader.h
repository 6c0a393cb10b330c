#pragma once

#include <cstddef>
#include <string_view>

#include <tvpolicy/base/Result.h>

#include "agent/TomlValue.h"

namespace tvpolicy::cli::agent {

/// Reads TOML 1.0 text into its table of values. The whole text must be TOML: a failure says
/// what is wrong in words, and its `code` is the line (from 1) where the reading stopped.
///
/// Values nest at most `maxDepth` arrays and inline tables deep; deeper text is refused rather
/// than read by ever deeper recursion.
class TomlReader {
public:
    static constexpr std::size_t maxDepth = 64;

    static Result<TomlValue> read(std::string_view text);
};

}  // namespace tvpolicy::cli::agent
