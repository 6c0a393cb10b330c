#pragma once

#include <ostream>
#include <string>

namespace cli {

/// Shows a policy run's announcements as they come, counted against the policy's progress
/// maximum: a bar redrawn in place on a terminal, one line per section otherwise.
///
/// An empty announcement stands for a section passed over, except the last one, which ends
/// the run; so each empty one is held back until the next announcement shows it was not last.
class RunProgress {
public:
    RunProgress(std::ostream& err, bool terminal, unsigned max) : err_(err), terminal_(terminal), max_(max) {}

    void announce(const std::string& sectionName);
    /// The run is over: the held-back end mark is dropped and the bar cleared.
    void finish();
    unsigned announced() const { return count_; }

private:
    void show(const std::string& label);

    std::ostream& err_;
    bool terminal_;
    unsigned max_;
    unsigned count_ = 0;
    bool heldBack_ = false;
};

}  // namespace cli
