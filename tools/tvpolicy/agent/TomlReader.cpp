#include "agent/TomlReader.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include <tvpolicy/base/Utf8.h>

namespace tvpolicy::cli::agent {
namespace {

using Kind = TomlValue::Kind;
using Key = std::vector<std::string>;

/// Why the reading stopped, and on which line. Thrown inside the reader only.
struct Refusal {
    std::string why;
    int line;
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isBareKeyCharacter(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '-';
}

/// What may make up a number, a boolean or a date and time.
bool isScalarCharacter(char c) { return isBareKeyCharacter(c) || c == '+' || c == '.' || c == ':'; }

/// Control characters other than tab, which TOML allows nowhere but as escapes.
bool isControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && byte != '\t') || byte == 0x7f;
}

int digitValue(char c, int base)
{
    int value = 99;
    if (isDigit(c)) {
        value = c - '0';
    } else if (c >= 'a' && c <= 'f') {
        value = c - 'a' + 10;
    } else if (c >= 'A' && c <= 'F') {
        value = c - 'A' + 10;
    }
    return value < base ? value : -1;
}

/// Digits of `base`, with single underscores between two digits.
bool isDigitRun(std::string_view text, int base)
{
    if (text.empty() || digitValue(text.front(), base) < 0 || digitValue(text.back(), base) < 0) {
        return false;
    }
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '_' ? text[i + 1] == '_' : digitValue(text[i], base) < 0) {
            return false;
        }
    }
    return true;
}

/// A decimal run without a leading zero (but "0" itself).
bool isDecimalInteger(std::string_view text)
{
    return isDigitRun(text, 10) && (text.size() == 1 || text.front() != '0');
}

std::string_view withoutSign(std::string_view text)
{
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        text.remove_prefix(1);
    }
    return text;
}

bool isFloat(std::string_view text)
{
    text = withoutSign(text);
    if (text == "inf" || text == "nan") {
        return true;
    }
    const std::size_t mark = text.find_first_of(".eE");
    if (mark == std::string_view::npos || !isDecimalInteger(text.substr(0, mark))) {
        return false;
    }
    std::string_view rest = text.substr(mark);
    if (rest.front() == '.') {
        const std::size_t exponent = rest.find_first_of("eE");
        if (!isDigitRun(rest.substr(1, exponent == std::string_view::npos ? exponent : exponent - 1), 10)) {
            return false;
        }
        if (exponent == std::string_view::npos) {
            return true;
        }
        rest = rest.substr(exponent);
    }
    return isDigitRun(withoutSign(rest.substr(1)), 10);
}

/// The number of two or four digits at `at`, or -1.
int fixedNumber(std::string_view text, std::size_t at, std::size_t digits)
{
    if (at + digits > text.size()) {
        return -1;
    }
    int value = 0;
    for (std::size_t i = at; i < at + digits; ++i) {
        if (!isDigit(text[i])) {
            return -1;
        }
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

bool isDate(std::string_view text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
        return false;
    }
    const int year = fixedNumber(text, 0, 4);
    const int month = fixedNumber(text, 5, 2);
    const int day = fixedNumber(text, 8, 2);
    if (year < 0 || month < 1 || month > 12 || day < 1) {
        return false;
    }
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int days[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return day <= days[month - 1];
}

/// HH:MM at `at`, within a day.
bool isHoursAndMinutes(std::string_view text, std::size_t at)
{
    const int hour = fixedNumber(text, at, 2);
    const int minute = fixedNumber(text, at + 3, 2);
    return at + 5 <= text.size() && text[at + 2] == ':' && hour >= 0 && hour < 24 && minute >= 0 && minute < 60;
}

/// A time of day (HH:MM:SS with any fraction of a second), and after it an offset when
/// `offset` (Z, or +HH:MM / -HH:MM) or nothing at all.
bool isTime(std::string_view text, bool offset)
{
    const int second = fixedNumber(text, 6, 2);
    if (!isHoursAndMinutes(text, 0) || text.size() < 8 || text[5] != ':' || second < 0 || second > 60) {
        return false;
    }
    std::size_t at = 8;
    if (at < text.size() && text[at] == '.') {
        const std::size_t digits = ++at;
        while (at < text.size() && isDigit(text[at])) {
            ++at;
        }
        if (at == digits) {
            return false;
        }
    }
    const std::string_view rest = text.substr(at);
    if (rest.empty() || (offset && (rest == "Z" || rest == "z"))) {
        return true;
    }
    return offset && rest.size() == 6 && (rest[0] == '+' || rest[0] == '-') && isHoursAndMinutes(rest, 1);
}

/// An offset or local date and time, a local date or a local time.
bool isDateTime(std::string_view text)
{
    if (text.size() >= 10 && isDate(text.substr(0, 10))) {
        if (text.size() == 10) {
            return true;
        }
        const char between = text[10];
        return (between == 'T' || between == 't' || between == ' ') && isTime(text.substr(11), true);
    }
    return isTime(text, false);
}

/// A key as the messages show it: its parts joined by dots, each quoted where it is not bare.
std::string shown(const Key& key, std::size_t parts)
{
    std::string out;
    for (std::size_t i = 0; i < parts; ++i) {
        const std::string& part = key[i];
        bool bare = !part.empty();
        for (char c : part) {
            bare = bare && isBareKeyCharacter(c);
        }
        out += (i > 0 ? "." : "") + (bare ? part : "\"" + utf8::valid(part) + "\"");
    }
    return out;
}

std::string shown(const Key& key) { return shown(key, key.size()); }

/// Marks an inline table, and the tables its dotted keys made, as closed to later additions.
void seal(TomlValue& table)
{
    table.sealed = true;
    for (TomlMember& member : table.members) {
        if (member.value.is(Kind::Table)) {
            seal(member.value);
        }
    }
}

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    TomlValue document();

private:
    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;

    [[noreturn]] void refuse(const std::string& why) const { throw Refusal{why, line_}; }
    bool atEnd() const { return at_ >= text_.size(); }
    char peek(std::size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }
    bool startsWith(std::string_view prefix) const { return text_.substr(at_, prefix.size()) == prefix; }
    std::string found() const;

    void checkEncoding() const;
    void skipSpace();
    bool skipNewline();
    void skipComment();
    void skipBlankLines();
    void endLine();

    Key key();
    std::string simpleKey();
    void keyValue(TomlValue& table, std::size_t depth);
    void place(TomlValue& table, const Key& key, TomlValue value) const;
    TomlValue* header(TomlValue& root);

    TomlValue value(std::size_t depth);
    std::string string(char quote, bool multiLine);
    bool closesString(char quote, bool multiLine, std::string& out);
    bool lineEndingBackslash();
    void escape(std::string& out);
    template <typename ReadItem>
    void items(char close, const std::string& what, ReadItem readItem);
    TomlValue array(std::size_t depth);
    TomlValue inlineTable(std::size_t depth);
    TomlValue scalar();
    void readInteger(std::string_view token, TomlValue& value) const;
};

std::string Parser::found() const
{
    if (atEnd()) {
        return "the end of the text";
    }
    const char c = text_[at_];
    if (c == '\n' || c == '\r') {
        return "the end of the line";
    }
    if (c >= 0x20 && c < 0x7f) {
        return std::string("'") + c + "'";
    }
    std::size_t next = at_;
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(utf8::next(text_, next)));
    return code;
}

void Parser::checkEncoding() const
{
    int line = line_;
    for (std::size_t i = at_; i < text_.size();) {
        const auto byte = static_cast<unsigned char>(text_[i]);
        if (byte < 0x80) {
            line += byte == '\n' ? 1 : 0;
            ++i;
        } else if (utf8::next(text_, i) < 0) {
            throw Refusal{"the text is not UTF-8", line};
        }
    }
}

void Parser::skipSpace()
{
    while (peek() == ' ' || peek() == '\t') {
        ++at_;
    }
}

bool Parser::skipNewline()
{
    if (peek() == '\r') {
        if (peek(1) != '\n') {
            refuse("a carriage return that does not end a line");
        }
        ++at_;
    }
    if (peek() != '\n') {
        return false;
    }
    ++at_;
    ++line_;
    return true;
}

void Parser::skipComment()
{
    for (++at_; !atEnd() && text_[at_] != '\n' && !startsWith("\r\n"); ++at_) {
        if (isControl(text_[at_])) {
            refuse("a control character (" + found() + ") in a comment");
        }
    }
}

void Parser::skipBlankLines()
{
    do {
        skipSpace();
        if (peek() == '#') {
            skipComment();
        }
    } while (skipNewline());
}

void Parser::endLine()
{
    skipSpace();
    if (peek() == '#') {
        skipComment();
    }
    if (!atEnd() && !skipNewline()) {
        refuse("expected the end of the line, found " + found());
    }
}

TomlValue Parser::document()
{
    if (startsWith("\xEF\xBB\xBF")) {
        at_ += 3;
    }
    checkEncoding();
    TomlValue root;
    root.headed = true;
    TomlValue* current = &root;
    for (skipBlankLines(); !atEnd(); skipBlankLines()) {
        if (peek() == '[') {
            current = header(root);
        } else {
            keyValue(*current, 0);
        }
        endLine();
    }
    return root;
}

Key Parser::key()
{
    Key parts{simpleKey()};
    for (skipSpace(); peek() == '.'; skipSpace()) {
        if (parts.size() == TomlReader::maxDepth) {
            refuse("a key of more than " + std::to_string(TomlReader::maxDepth) + " parts");
        }
        ++at_;
        skipSpace();
        parts.push_back(simpleKey());
    }
    return parts;
}

std::string Parser::simpleKey()
{
    if (peek() == '"' || peek() == '\'') {
        if (startsWith(std::string(3, peek()))) {
            refuse("a key cannot be a multi-line string");
        }
        return string(peek(), false);
    }
    const std::size_t start = at_;
    while (!atEnd() && isBareKeyCharacter(text_[at_])) {
        ++at_;
    }
    if (at_ == start) {
        refuse("expected a key, found " + found());
    }
    return std::string(text_.substr(start, at_ - start));
}

void Parser::keyValue(TomlValue& table, std::size_t depth)
{
    Key name = key();
    if (peek() != '=') {
        refuse("expected '=' after the key " + shown(name) + ", found " + found());
    }
    ++at_;
    skipSpace();
    place(table, name, value(depth));
}

void Parser::place(TomlValue& table, const Key& key, TomlValue value) const
{
    TomlValue* into = &table;
    for (std::size_t i = 0; i + 1 < key.size(); ++i) {
        TomlValue* next = into->find(key[i]);
        if (next == nullptr) {
            next = &into->add(key[i]);
            next->dotted = true;
        } else if (!next->is(Kind::Table) || !next->dotted || next->sealed) {
            refuse("a dotted key cannot add to " + shown(key, i + 1) + ", which is defined elsewhere");
        }
        into = next;
    }
    if (into->find(key.back()) != nullptr) {
        refuse(shown(key) + " is defined twice");
    }
    into->add(key.back(), std::move(value));
}

TomlValue* Parser::header(TomlValue& root)
{
    ++at_;
    const bool element = peek() == '[';
    at_ += element ? 1 : 0;
    skipSpace();
    const Key name = key();
    if (peek() != ']' || (element && peek(1) != ']')) {
        refuse(std::string("expected '") + (element ? "]]" : "]") + "' to close the header, found " + found());
    }
    at_ += element ? 2 : 1;

    TomlValue* into = &root;
    for (std::size_t i = 0; i + 1 < name.size(); ++i) {
        TomlValue* next = into->find(name[i]);
        if (next == nullptr) {
            next = &into->add(name[i]);
        } else if (next->is(Kind::Array) && next->tableArray) {
            next = &next->items.back();
        } else if (!next->is(Kind::Table) || next->sealed) {
            refuse(shown(name, i + 1) + " is defined as a value, not a table");
        }
        into = next;
    }
    TomlValue* named = into->find(name.back());
    if (element) {
        if (named == nullptr) {
            named = &into->add(name.back());
            named->kind = Kind::Array;
            named->tableArray = true;
        } else if (!named->is(Kind::Array) || !named->tableArray) {
            refuse("[[" + shown(name) + "]] adds to an array of tables, but " + shown(name) + " is defined otherwise");
        }
        named->items.emplace_back();
        named = &named->items.back();
    } else if (named == nullptr) {
        named = &into->add(name.back());
    } else if (!named->is(Kind::Table) || named->headed || named->dotted || named->sealed) {
        refuse("the table [" + shown(name) + "] is defined twice");
    }
    named->headed = true;
    return named;
}

TomlValue Parser::value(std::size_t depth)
{
    const char first = peek();
    if (first == '"' || first == '\'') {
        TomlValue text;
        text.kind = Kind::String;
        text.text = string(first, startsWith(std::string(3, first)));
        return text;
    }
    if (first == '[' || first == '{') {
        if (depth == TomlReader::maxDepth) {
            refuse("values nest more than " + std::to_string(TomlReader::maxDepth) + " deep");
        }
        return first == '[' ? array(depth + 1) : inlineTable(depth + 1);
    }
    return scalar();
}

std::string Parser::string(char quote, bool multiLine)
{
    const bool escapes = quote == '"';
    at_ += multiLine ? 3 : 1;
    if (multiLine) {
        skipNewline();
    }
    std::string out;
    for (;;) {
        if (atEnd()) {
            refuse(multiLine ? "a multi-line string is not closed" : "a string is not closed");
        }
        const char c = text_[at_];
        if (c == quote) {
            if (closesString(quote, multiLine, out)) {
                return out;
            }
        } else if (c == '\\' && escapes) {
            if (!multiLine || !lineEndingBackslash()) {
                escape(out);
            }
        } else if (c == '\n' || c == '\r') {
            if (!multiLine) {
                refuse("a string is not closed on its line");
            }
            const std::size_t start = at_;
            skipNewline();
            out.append(text_.substr(start, at_ - start));
        } else if (isControl(c)) {
            refuse("a control character (" + found() + ") in a string");
        } else {
            out += c;
            ++at_;
        }
    }
}

/// At a quote inside a string: true when it ends the string. A multi-line string keeps up to
/// two quotes right before its closing three.
bool Parser::closesString(char quote, bool multiLine, std::string& out)
{
    if (!multiLine) {
        ++at_;
        return true;
    }
    std::size_t quotes = 0;
    while (peek(quotes) == quote) {
        ++quotes;
    }
    at_ += quotes;
    if (quotes < 3) {
        out.append(quotes, quote);
        return false;
    }
    if (quotes > 5) {
        refuse("more than five quotes end a multi-line string");
    }
    out.append(quotes - 3, quote);
    return true;
}

/// A backslash that ends a line of a multi-line string joins it to the next text: the line
/// end and all space and line ends after it go.
bool Parser::lineEndingBackslash()
{
    std::size_t next = at_ + 1;
    while (next < text_.size() && (text_[next] == ' ' || text_[next] == '\t')) {
        ++next;
    }
    if (next == text_.size() || (text_[next] != '\n' && text_[next] != '\r')) {
        return false;
    }
    at_ = next;
    do {
        skipSpace();
    } while (skipNewline());
    return true;
}

void Parser::escape(std::string& out)
{
    ++at_;
    const char c = peek();
    const std::string simple = "btnfr\"\\";
    const std::string meant = "\b\t\n\f\r\"\\";
    if (const std::size_t which = simple.find(c); !atEnd() && which != std::string::npos) {
        out += meant[which];
        ++at_;
        return;
    }
    if (c != 'u' && c != 'U') {
        refuse("an unknown escape: \\ followed by " + found());
    }
    const std::size_t digits = c == 'u' ? 4 : 8;
    ++at_;
    std::uint32_t code = 0;
    for (std::size_t i = 0; i < digits; ++i, ++at_) {
        const int digit = atEnd() ? -1 : digitValue(text_[at_], 16);
        if (digit < 0) {
            refuse(std::string("\\") + c + " needs " + std::to_string(digits) + " hexadecimal digits, found " +
                   found());
        }
        code = code * 16 + static_cast<std::uint32_t>(digit);
    }
    if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        refuse(std::string("\\") + c + " names no Unicode character");
    }
    utf8::append(out, static_cast<std::int32_t>(code));
}

template <typename ReadItem>
void Parser::items(char close, const std::string& what, ReadItem readItem)
{
    const bool inlineTable = close == '}';
    auto skipGap = [this, inlineTable] { inlineTable ? skipSpace() : skipBlankLines(); };
    ++at_;
    // An array may end in a comma; an inline table may not.
    for (bool first = true;; first = false) {
        skipGap();
        if (peek() == close && (first || !inlineTable)) {
            break;
        }
        readItem();
        skipGap();
        if (peek() == close) {
            break;
        }
        if (peek() != ',') {
            refuse(std::string("expected ',' or '") + close + "' in " + what + ", found " + found());
        }
        ++at_;
    }
    ++at_;
}

TomlValue Parser::array(std::size_t depth)
{
    TomlValue list;
    list.kind = Kind::Array;
    items(']', "an array", [&] { list.items.push_back(value(depth)); });
    return list;
}

TomlValue Parser::inlineTable(std::size_t depth)
{
    TomlValue table;
    items('}', "an inline table (which closes on its line)", [&] { keyValue(table, depth); });
    seal(table);
    return table;
}

TomlValue Parser::scalar()
{
    const std::size_t start = at_;
    auto skipToken = [this] {
        while (!atEnd() && isScalarCharacter(text_[at_])) {
            ++at_;
        }
    };
    skipToken();
    // A date and its time may be parted by a space.
    if (isDate(text_.substr(start, at_ - start)) && peek() == ' ' && isDigit(peek(1)) && isDigit(peek(2)) &&
        peek(3) == ':') {
        ++at_;
        skipToken();
    }
    const std::string_view token = text_.substr(start, at_ - start);
    if (token.empty()) {
        refuse("expected a value, found " + found());
    }
    TomlValue value;
    if (token == "true" || token == "false") {
        value.kind = Kind::Boolean;
        value.boolean = token == "true";
    } else if (isFloat(token)) {
        value.kind = Kind::Float;
        value.text = token;
    } else if (isDateTime(token)) {
        value.kind = Kind::DateTime;
        value.text = token;
    } else {
        readInteger(token, value);
    }
    return value;
}

void Parser::readInteger(std::string_view token, TomlValue& value) const
{
    const bool negative = !token.empty() && token.front() == '-';
    std::string_view digits = withoutSign(token);
    int base = 10;
    if (digits.size() > 2 && digits[0] == '0' && digits.size() == token.size()) {
        const std::string prefixes = "xob";
        const int bases[] = {16, 8, 2};
        if (const std::size_t which = prefixes.find(digits[1]); which != std::string::npos) {
            base = bases[which];
            digits.remove_prefix(2);
        }
    }
    // Tokens hold only the characters of numbers and dates, but may be long.
    const std::string shownToken = std::string(token.substr(0, 40)) + (token.size() > 40 ? "..." : "");
    if (base == 10 ? !isDecimalInteger(digits) : !isDigitRun(digits, base)) {
        refuse("`" + shownToken + "` is not a value (a text needs quotes)");
    }
    const std::uint64_t limit = negative ? std::uint64_t{1} << 63 : (std::uint64_t{1} << 63) - 1;
    std::uint64_t magnitude = 0;
    for (char c : digits) {
        if (c == '_') {
            continue;
        }
        const auto digit = static_cast<std::uint64_t>(digitValue(c, base));
        if (magnitude > (limit - digit) / static_cast<std::uint64_t>(base)) {
            refuse("the integer " + shownToken + " is outside the 64-bit range");
        }
        magnitude = magnitude * static_cast<std::uint64_t>(base) + digit;
    }
    value.kind = Kind::Integer;
    value.integer = negative ? static_cast<long long>(0 - magnitude) : static_cast<long long>(magnitude);
}

}  // namespace

Result<TomlValue> TomlReader::read(std::string_view text)
{
    try {
        return Parser(text).document();
    } catch (const Refusal& refusal) {
        return Failure{refusal.why, refusal.line};
    }
}

}  // namespace tvpolicy::cli::agent
