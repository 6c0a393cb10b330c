#pragma once

#include <string>

namespace tvpolicy::cli {

/// The SHA-256 digest of `bytes` as 64 lower-case hexadecimal digits, so that a results file
/// names exactly the policy text it came from.
std::string sha256Hex(const std::string& bytes);

}  // namespace tvpolicy::cli
