#pragma once

#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace testing_support {

/// Collects what is written to a standard stream (std::clog, std::cerr ...) for its lifetime,
/// then gives the stream its own buffer back.
class CapturedStream {
public:
    explicit CapturedStream(std::ostream& stream);
    ~CapturedStream();
    CapturedStream(const CapturedStream&) = delete;
    CapturedStream& operator=(const CapturedStream&) = delete;

    std::string text() const { return buffer_.str(); }
    /// The lines written so far, each without its UTC prefix "YYYY-MM-DD hh:mm:ss UTC :: " and
    /// without a "Debug: " marker.
    std::vector<std::string> messages() const;

private:
    std::ostringstream buffer_;  // first: it must exist before the stream is pointed at it
    std::ostream& stream_;
    std::streambuf* previous_;
};

}  // namespace testing_support
