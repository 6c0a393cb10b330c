#include "base/LogLine.h"

#include <unistd.h>
#include <cstdio>
#include <ctime>
#include <iostream>

#include "base/TimestampText.h"

namespace tvi {

namespace {

// Lines are handed over once this much is gathered; a piece at least this long is written
// through at once instead of being copied.
constexpr std::size_t batchBytes = std::size_t{64} * 1024;

// The buffers of the standard streams as the program started, for telling a terminal.
std::streambuf* const standardOut = std::cout.rdbuf();
std::streambuf* const standardErr = std::cerr.rdbuf();
std::streambuf* const standardLog = std::clog.rdbuf();

bool isTerminal(const std::streambuf* buffer)
{
    if (buffer == standardOut) {
        return ::isatty(STDOUT_FILENO) == 1;
    }
    if (buffer == standardErr || buffer == standardLog) {
        return ::isatty(STDERR_FILENO) == 1;
    }
    return false;
}

// This thread's log state: the line being written, the lines gathered for one stream in a batch.
struct Pending {
    std::string line;
    bool lineInUse = false;
    std::string batch;
    std::ostream* stream = nullptr;    // where `batch` goes
    std::streambuf* target = nullptr;  // its buffer when the batch's first line was gathered
    bool terminal = false;
    int depth = 0;
    std::time_t second = -1;  // the second `stamp` shows
    std::string stamp;

    // Hands the gathered lines to their stream. A stream whose buffer was replaced since gets
    // them in its new buffer: they are never written into one that may be gone.
    void writeOut()
    {
        if (!batch.empty() && stream != nullptr) {
            stream->write(batch.data(), static_cast<std::streamsize>(batch.size()));
        }
        batch.clear();
    }

    void finish()
    {
        writeOut();
        if (stream != nullptr) {
            stream->flush();
        }
        stream = nullptr;
        target = nullptr;
    }

    // Makes `to` the batch's stream, first handing over what was gathered for another one.
    void aim(std::ostream& to)
    {
        if (stream == &to && target == to.rdbuf()) {
            return;
        }
        finish();
        stream = &to;
        target = to.rdbuf();
        terminal = isTerminal(target);
    }

    const std::string& timestamp()
    {
        std::time_t now = std::time(nullptr);
        if (now != second) {
            second = now;
            timestampText(now, stamp);
        }
        return stamp;
    }

    ~Pending() { finish(); }
};

thread_local Pending pending;

}  // namespace

LogLine::LogLine(std::ostream& stream) : stream_(stream), text_(nullptr)
{
    if (!stream.good() || stream.rdbuf() == nullptr) {
        return;
    }
    if (pending.lineInUse) {
        // A line written while another is being composed (from within an argument).
        own_ = std::make_unique<std::string>();
        text_ = own_.get();
    } else {
        pending.lineInUse = true;
        text_ = &pending.line;
        text_->clear();
    }
    text_->append(pending.timestamp());
}

void LogLine::spill(std::string_view text)
{
    if (pending.depth > 0) {
        pending.aim(stream_);
        pending.writeOut();
    }
    stream_.write(text_->data(), static_cast<std::streamsize>(text_->size()));
    text_->clear();
    stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
}

LogLine::~LogLine()
{
    if (text_ == nullptr) {
        return;
    }
    text_->push_back('\n');
    if (pending.depth == 0) {
        stream_.write(text_->data(), static_cast<std::streamsize>(text_->size()));
        stream_.flush();
    } else {
        pending.aim(stream_);
        if (pending.terminal) {
            stream_.write(text_->data(), static_cast<std::streamsize>(text_->size()));
            stream_.flush();
        } else {
            pending.batch.append(*text_);
            if (pending.batch.size() >= batchBytes) {
                pending.writeOut();
            }
        }
    }
    if (text_ == &pending.line) {
        if (text_->capacity() > batchBytes) {
            std::string().swap(*text_);
        }
        pending.lineInUse = false;
    }
}

void LogLine::appendNumber(long long value) { text_->append(std::to_string(value)); }

void LogLine::appendNumber(unsigned long long value) { text_->append(std::to_string(value)); }

void LogLine::appendNumber(double value)
{
    char buffer[32];
    int length = std::snprintf(buffer, sizeof buffer, "%g", value);
    text_->append(buffer, length > 0 ? static_cast<std::size_t>(length) : 0);
}

LogBatch::LogBatch() { ++pending.depth; }

LogBatch::~LogBatch()
{
    if (--pending.depth == 0) {
        pending.finish();
    }
}

void flushLogBatch() { pending.finish(); }

}  // namespace tvi
