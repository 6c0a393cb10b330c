#include "io/TerminalText.h"

#include <cstdlib>
#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tvpolicy::cli {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// East Asian wide and full-width blocks, and the emoji planes.
constexpr Range wideRanges[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0x9FFF},
    {0xA000, 0xA4CF},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE4F},   {0xFF00, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x2FFFD}, {0x30000, 0x3FFFD}};

// Combining marks and zero-width characters.
constexpr Range zeroRanges[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A},
                                {0x064B, 0x065F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F},
                                {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

template <std::size_t N>
bool within(char32_t c, const Range (&ranges)[N])
{
    for (const Range& range : ranges) {
        if (c >= range.first && c <= range.last) {
            return true;
        }
    }
    return false;
}

// Decodes the character at `i`: its code point and byte length (1 for a stray byte).
char32_t decode(const std::string& text, std::size_t i, std::size_t& length)
{
    auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    unsigned char lead = byte(i);
    length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 1;
    if (i + length > text.size()) {
        length = 1;
    }
    if (length == 1) {
        return lead;
    }
    char32_t c = lead & (0x7F >> length);
    for (std::size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80) {
            length = 1;
            return lead;
        }
        c = (c << 6) | (byte(i + k) & 0x3F);
    }
    return c;
}

std::size_t columnsOf(char32_t c)
{
    if (c < 0x20 || (c >= 0x7F && c < 0xA0) || within(c, zeroRanges)) {
        return 0;
    }
    return within(c, wideRanges) ? 2 : 1;
}

}  // namespace

std::size_t displayWidth(const std::string& text)
{
    std::size_t width = 0;
    for (std::size_t i = 0, length = 0; i < text.size(); i += length) {
        width += columnsOf(decode(text, i, length));
    }
    return width;
}

std::string fitWidth(const std::string& text, std::size_t columns)
{
    std::size_t width = 0;
    for (std::size_t i = 0, length = 0; i < text.size(); i += length) {
        std::size_t next = columnsOf(decode(text, i, length));
        if (width + next > columns) {
            return text.substr(0, i);
        }
        width += next;
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
