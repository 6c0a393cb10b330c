#include "RunProgress.h"

#include <algorithm>

namespace cli {

namespace {

// At most 40 bytes of a UTF-8 name, never cutting a character in two.
std::string shortened(const std::string& name)
{
    std::size_t length = std::min<std::size_t>(name.size(), 40);
    while (length < name.size() && length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80) {
        --length;
    }
    return name.substr(0, length);
}

}  // namespace

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
    err_ << "\r[" << bar << "] " << shown << "/" << max_ << " " << shortened(label) << "\033[K" << std::flush;
}

}  // namespace cli
