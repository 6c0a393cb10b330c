#pragma once

#include <string>
#include <vector>

namespace tvpolicy::cli {

/// The words one after another, `separator` between each and the text before it (none after
/// an empty start).
inline std::string joined(const std::vector<std::string>& words, const char* separator)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : separator) + word;
    }
    return text;
}

}  // namespace tvpolicy::cli
