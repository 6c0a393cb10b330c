#pragma once

#include <string>
#include <utility>

#include <tvpolicy/export.h>

namespace com::torvane {

/// One choice of a SELECT login field: the text shown (name) and the value sent (value).
class TVPOLICY_API LoginFieldOption {
public:
    LoginFieldOption() = default;
    LoginFieldOption(std::string shown, std::string sent) : name(std::move(shown)), value(std::move(sent)) {}

    std::string name;
    std::string value;
};

}  // namespace com::torvane
