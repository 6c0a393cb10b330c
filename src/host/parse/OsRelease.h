#pragma once

#include <map>
#include <string>

namespace tvpolicy::parse {

/// The variables of an os-release file (/etc/os-release): newline-separated shell-style
/// assignments such as NAME="Debian GNU/Linux" or VERSION_ID=12.
///
/// Values may be double-quoted (where a backslash escapes $ " \ and `), single-quoted (taken
/// literally) or bare (a backslash escapes the next character; trailing blanks are dropped),
/// and quoted and bare pieces may follow each other. Blank lines, comments (#) and lines that
/// are not an assignment to a valid variable name are passed over; an unterminated quote runs
/// to the end of its line. A later assignment to the same variable wins.
class OsRelease {
public:
    static OsRelease parse(const std::string& text);

    /// The variable's value, or empty when the file does not set it.
    std::string value(const std::string& name) const;
    bool has(const std::string& name) const { return values_.count(name) != 0; }

private:
    std::map<std::string, std::string> values_;
};

}  // namespace tvpolicy::parse
