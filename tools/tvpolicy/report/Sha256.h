#pragma once

#include <nettle/sha2.h>

#include <cstdint>
#include <string>

namespace tvpolicy::cli {

/// The SHA-256 digest of `bytes` as 64 lower-case hexadecimal digits, so that a results file
/// names exactly the policy text it came from.
inline std::string sha256Hex(const std::string& bytes)
{
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
    std::uint8_t digest[SHA256_DIGEST_SIZE];
    sha256_digest(&context, sizeof digest, digest);
    static constexpr char hex[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * sizeof digest);
    for (std::uint8_t byte : digest) {
        text += hex[byte >> 4];
        text += hex[byte & 0xF];
    }
    return text;
}

}  // namespace tvpolicy::cli
