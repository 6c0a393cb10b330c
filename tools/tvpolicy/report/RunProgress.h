#pragma once

#include <ostream>
#include <string>

namespace tvpolicy::cli {

/// Shows a policy run's sections as they start, counted against the policy's progress
/// maximum: one line per section ("[3/6] Agent"), or on a terminal one bar redrawn in place,
/// fitted to the terminal's width and erased at the end or when the run is interrupted.
class RunProgress {
public:
    enum class Mode { quiet, lines, bar };

    RunProgress(std::ostream& err, int errFd, Mode mode, unsigned max);
    ~RunProgress();
    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

    /// A section starts.
    void started(const std::string& sectionName);
    /// A secondary section is passed over because its group's primary did not pass.
    void passedOver(const std::string& sectionName);
    /// The run is over: the bar is erased.
    void finish();
    /// Sections shown so far, those passed over included.
    unsigned announced() const { return count_; }

private:
    void show(const std::string& label);

    std::ostream& err_;
    int errFd_;
    Mode mode_;
    unsigned max_;
    unsigned count_ = 0;
    bool drawn_ = false;
};

}  // namespace tvpolicy::cli
