#include "report/RunProgress.h"

#include <unistd.h>
#include <algorithm>
#include <atomic>
#include <csignal>

#include "io/TerminalText.h"

namespace tvpolicy::cli {

namespace {

// Where a bar is drawn, for the signal handler that erases it; -1 while none is.
std::atomic<int> barFd{-1};

extern "C" void eraseBarAndStop(int signal)
{
    int fd = barFd.load();
    if (fd >= 0) {
        static const char erase[] = "\r\033[K";
        [[maybe_unused]] ssize_t ignored = ::write(fd, erase, sizeof erase - 1);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

RunProgress::RunProgress(std::ostream& err, int errFd, Mode mode, unsigned max)
    : err_(err),
      errFd_(errFd),
      mode_(mode),
      max_(max)
{
    if (mode_ == Mode::bar) {
        barFd = errFd_;
        std::signal(SIGINT, eraseBarAndStop);
        std::signal(SIGTERM, eraseBarAndStop);
    }
}

RunProgress::~RunProgress()
{
    if (mode_ == Mode::bar) {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
        barFd = -1;
    }
}

void RunProgress::started(const std::string& sectionName) { show(sectionName); }

void RunProgress::passedOver(const std::string& sectionName) { show("(passed over) " + sectionName); }

void RunProgress::finish()
{
    if (mode_ == Mode::bar && drawn_) {
        err_ << "\r\033[K" << std::flush;
        drawn_ = false;
    }
}

void RunProgress::show(const std::string& label)
{
    ++count_;
    if (mode_ == Mode::quiet) {
        return;
    }
    // A custom-scan section can be evaluated twice, so the count may pass the maximum.
    unsigned shown = max_ > 0 ? std::min(count_, max_) : count_;
    std::string counter = std::to_string(shown) + "/" + std::to_string(max_);
    if (mode_ == Mode::lines) {
        err_ << "[" << counter << "] " << label << '\n' << std::flush;
        return;
    }
    // [######----] 3/6 name, within the terminal's width (the last column is left free so the
    // terminal never wraps).
    std::size_t columns = terminalColumns(errFd_);
    std::size_t width = std::min<std::size_t>(30, columns > 40 ? 30 : columns / 4);
    std::size_t filled = max_ > 0 ? shown * width / max_ : width;
    std::string head = "[" + std::string(filled, '#') + std::string(width - filled, '-') + "] " + counter + " ";
    std::size_t room = columns > head.size() + 1 ? columns - head.size() - 1 : 0;
    err_ << "\r" << head << fitWidth(label, room) << "\033[K" << std::flush;
    drawn_ = true;
}

}  // namespace tvpolicy::cli
