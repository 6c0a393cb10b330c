#include "io/TerminalText.h"

#include <sys/ioctl.h>
#include <unicode/uchar.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <tvpolicy/base/Utf8.h>

namespace tvpolicy::cli {

namespace {

// Unicode's East Asian width and emoji presentation: wide and full-width characters and
// emoji take two columns; control characters, combining marks and invisible format
// characters none.
std::size_t columnsOf(UChar32 c)
{
    if (c < 0) {
        return 1;
    }
    const auto category = static_cast<UCharCategory>(u_charType(c));
    if (category == U_CONTROL_CHAR || category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK ||
        category == U_FORMAT_CHAR) {
        return 0;
    }
    if (u_hasBinaryProperty(c, UCHAR_EMOJI_PRESENTATION)) {
        return 2;
    }
    const auto width = u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

}  // namespace

std::size_t displayWidth(const std::string& text)
{
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size();) {
        width += columnsOf(utf8::next(text, i));
    }
    return width;
}

std::string fitWidth(const std::string& text, std::size_t columns)
{
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t start = i;
        const std::size_t more = columnsOf(utf8::next(text, i));
        if (width + more > columns) {
            return text.substr(0, start);
        }
        width += more;
    }
    return text;
}

std::size_t terminalColumns(int fd)
{
    struct winsize size {};
    if (::ioctl(fd, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
    const char* columns = std::getenv("COLUMNS");
    long value = columns != nullptr ? std::strtol(columns, nullptr, 10) : 0;
    return value > 0 ? static_cast<std::size_t>(value) : 80;
}

bool smartTerminal(int fd)
{
    const char* term = std::getenv("TERM");
    return ::isatty(fd) == 1 && term != nullptr && *term != '\0' && std::strcmp(term, "dumb") != 0;
}

bool colourWanted(int fd, bool disabled)
{
    const char* noColor = std::getenv("NO_COLOR");
    return !disabled && (noColor == nullptr || *noColor == '\0') && smartTerminal(fd);
}

std::string toned(const std::string& text, Tone tone, bool on)
{
    if (!on) {
        return text;
    }
    const char* code = tone == Tone::pass ? "\033[32m" : tone == Tone::fail ? "\033[31m" : "\033[33m";
    return code + text + "\033[0m";
}

}  // namespace tvpolicy::cli
