#include "RunProgress.h"

#include <algorithm>

namespace cli {

void RunProgress::announce(const std::string& sectionName)
{
    if (heldBack_) {
        heldBack_ = false;
        show("(section passed over)");
    }
    if (sectionName.empty()) {
        heldBack_ = true;
        return;
    }
    show(sectionName);
}

void RunProgress::finish()
{
    heldBack_ = false;
    if (terminal_ && count_ > 0) {
        err_ << "\r\033[K" << std::flush;
    }
}

void RunProgress::show(const std::string& label)
{
    ++count_;
    // A custom-scan section can be evaluated twice, so the count may pass the maximum.
    unsigned shown = max_ > 0 ? std::min(count_, max_) : count_;
    if (!terminal_) {
        err_ << "[" << shown << "/" << max_ << "] " << label << '\n' << std::flush;
        return;
    }
    constexpr unsigned width = 30;
    unsigned filled = max_ > 0 ? shown * width / max_ : width;
    std::string bar = std::string(filled, '#') + std::string(width - filled, '-');
    err_ << "\r[" << bar << "] " << shown << "/" << max_ << " " << label.substr(0, 40) << "\033[K" << std::flush;
}

}  // namespace cli
