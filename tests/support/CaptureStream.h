#pragma once

#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace testing_support {

/// Collects what is written to a standard stream (std::cout, std::clog ...) while it lives, and
/// gives the stream its own buffer back when it ends.
class CaptureStream {
public:
    explicit CaptureStream(std::ostream& stream) : stream_(stream), saved_(stream.rdbuf(buffer_.rdbuf())) {}
    ~CaptureStream() { stream_.rdbuf(saved_); }
    CaptureStream(const CaptureStream&) = delete;
    CaptureStream& operator=(const CaptureStream&) = delete;

    std::string text() const { return buffer_.str(); }

private:
    std::ostream& stream_;
    std::ostringstream buffer_;
    std::streambuf* saved_;
};

/// The lines of a log text with their "YYYY-MM-DD HH:MM:SS UTC :: " prefixes removed.
std::string withoutTimestamps(const std::string& log);

/// The lines of a log text, each without its timestamp prefix and without a "Debug: " marker.
std::vector<std::string> logMessages(const std::string& log);

}  // namespace testing_support
