#pragma once

#include <cstddef>
#include <string>

namespace tvpolicy::cli {

/// Columns that the UTF-8 `text` takes on a terminal: two for wide characters (CJK, emoji),
/// none for combining marks and control characters, one for the rest (a byte that is not
/// valid UTF-8 included).
std::size_t displayWidth(const std::string& text);

/// The longest start of `text` that takes at most `columns`, never cutting a character.
std::string fitWidth(const std::string& text, std::size_t columns);

/// The width of the terminal behind `fd`, else $COLUMNS, else 80.
std::size_t terminalColumns(int fd);

/// Whether `fd` is a terminal that takes a redrawn line: not TERM=dumb (nor unset).
bool smartTerminal(int fd);

/// Whether to colour what goes to `fd`: a smart terminal, no NO_COLOR in the environment, and
/// not switched off by the person (`disabled`).
bool colourWanted(int fd, bool disabled);

/// `text` in the colour of a status word when `on`: green for pass, red for fail, yellow for
/// a warning.
enum class Tone { pass, fail, warn };
std::string toned(const std::string& text, Tone tone, bool on);

}  // namespace tvpolicy::cli
