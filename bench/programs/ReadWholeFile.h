#pragma once

#include <fstream>
#include <string>

namespace bench {

/// The bytes of the file at `path`, read in one piece into a string of its size ("" when it
/// cannot be read).
inline std::string readWholeFile(const char* path)
{
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    std::string text;
    if (!in) {
        return text;
    }
    text.resize(static_cast<std::size_t>(in.tellg()));
    in.seekg(0);
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return text;
}

}  // namespace bench
