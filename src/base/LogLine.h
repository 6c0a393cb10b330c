#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

namespace tvi {

/// One line of the library's log: the timestamp, then what is streamed into it, ended by a
/// line break when the object goes. A stream that discards its output (failed, or without a
/// buffer) costs nothing.
///
/// Outside a LogBatch each line is handed to the stream's buffer in one write and flushed, as
/// `std::endl` would. Inside one, lines that do not go to a terminal are gathered and handed
/// over in large writes, and flushed when the batch ends.
class LogLine {
public:
    explicit LogLine(std::ostream& stream);
    ~LogLine();
    LogLine(const LogLine&) = delete;
    LogLine& operator=(const LogLine&) = delete;

    LogLine& operator<<(std::string_view text)
    {
        if (text_ != nullptr) {
            if (text.size() >= spillBytes) {
                spill(text);
            } else {
                text_->append(text.data(), text.size());
            }
        }
        return *this;
    }
    LogLine& operator<<(const std::string& text) { return *this << std::string_view(text); }
    LogLine& operator<<(const char* text) { return *this << std::string_view(text != nullptr ? text : ""); }
    LogLine& operator<<(char c)
    {
        if (text_ != nullptr) {
            text_->push_back(c);
        }
        return *this;
    }
    template <typename Number, typename = std::enable_if_t<std::is_arithmetic_v<Number>>>
    LogLine& operator<<(Number value)
    {
        if (text_ != nullptr) {
            appendNumber(value);
        }
        return *this;
    }

private:
    // A piece at least this long is written through instead of being copied into the line.
    static constexpr std::size_t spillBytes = std::size_t{64} * 1024;

    // Writes what the line holds so far, then `text`, to the stream (after the lines gathered
    // before it).
    void spill(std::string_view text);
    void appendNumber(long long value);
    void appendNumber(unsigned long long value);
    void appendNumber(double value);
    template <typename Number>
    void appendNumber(Number value)
    {
        if constexpr (std::is_floating_point_v<Number>) {
            appendNumber(static_cast<double>(value));
        } else if constexpr (std::is_signed_v<Number>) {
            appendNumber(static_cast<long long>(value));
        } else {
            appendNumber(static_cast<unsigned long long>(value));
        }
    }

    std::ostream& stream_;
    std::string* text_;                 // the line being written; null when the stream discards it
    std::unique_ptr<std::string> own_;  // its text when this thread was already writing a line
};

/// While alive, the log lines this thread writes are gathered and handed to their stream in
/// large writes (a terminal still gets each line at once). Batches nest; the outermost one
/// writes what is left and flushes the stream when it ends, also when an exception leaves.
class LogBatch {
public:
    LogBatch();
    ~LogBatch();
    LogBatch(const LogBatch&) = delete;
    LogBatch& operator=(const LogBatch&) = delete;
};

/// Hands the lines gathered on this thread to their stream and flushes it: before control goes
/// to code outside the library, and before the process is ended.
void flushLogBatch();

}  // namespace tvi
