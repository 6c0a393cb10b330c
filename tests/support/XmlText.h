#pragma once

#include <string>

namespace testing_support {

/// `part` written `count` times.
inline std::string repeat(const std::string& part, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += part;
    }
    return text;
}

/// `inner` inside `depth` levels of `<element>`.
inline std::string nested(const std::string& element, int depth, const std::string& inner)
{
    return repeat("<" + element + ">", depth) + inner + repeat("</" + element + ">", depth);
}

/// ` a0='v' a1='v' ...`: `count` attributes.
inline std::string numberedAttributes(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += " a" + std::to_string(i) + "='v'";
    }
    return text;
}

/// A document type for `root` whose entity `&l<levels>;` expands to 10^levels times "lol".
inline std::string entityBomb(const std::string& root, int levels)
{
    std::string text = "<?xml version='1.0'?>\n<!DOCTYPE " + root + " [\n<!ENTITY l0 'lol'>\n";
    for (int i = 1; i <= levels; ++i) {
        text += "<!ENTITY l" + std::to_string(i) + " '" + repeat("&l" + std::to_string(i - 1) + ";", 10) + "'>\n";
    }
    return text + "]>\n";
}

}  // namespace testing_support
