#include "io/StopSignals.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <cerrno>
#include <stdexcept>

namespace tvpolicy::cli {

namespace {

// Written by the handler; a pipe wakes the waiting poll without a race between checking the
// flag and starting to wait.
volatile std::sig_atomic_t stopFlag = 0;
volatile std::sig_atomic_t stopSignal = 0;
int wakeFd = -1;

extern "C" void requestStop(int signal)
{
    int saved = errno;
    stopFlag = 1;
    stopSignal = signal;
    if (wakeFd >= 0) {
        char byte = 1;
        // A full pipe already holds a wake-up; nothing else can be done in a handler.
        if (::write(wakeFd, &byte, 1) < 0) {
            stopFlag = 1;
        }
    }
    errno = saved;
}

// Milliseconds from now until `deadline`: 0 once it has passed, at most an hour (the caller
// waits again), and no overflow for deadlines far away in either direction.
long millisecondsUntil(const std::timespec& deadline)
{
    constexpr long longestWait = 3600000;
    std::timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    if (deadline.tv_sec < now.tv_sec) {
        return 0;
    }
    if (deadline.tv_sec - now.tv_sec >= longestWait / 1000) {
        return longestWait;
    }
    long long nanos =
        static_cast<long long>(deadline.tv_sec - now.tv_sec) * 1000000000LL + (deadline.tv_nsec - now.tv_nsec);
    return nanos <= 0 ? 0 : static_cast<long>((nanos + 999999) / 1000000);
}

}  // namespace

StopSignals::StopSignals()
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::runtime_error("cannot create the signal pipe");
    }
    readEnd_.reset(fds[0]);
    writeEnd_.reset(fds[1]);
    stopFlag = 0;
    stopSignal = 0;
    wakeFd = writeEnd_.get();

    struct sigaction action {};
    action.sa_handler = &requestStop;
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, &savedInt_);
    ::sigaction(SIGTERM, &action, &savedTerm_);
}

StopSignals::~StopSignals()
{
    ::sigaction(SIGINT, &savedInt_, nullptr);
    ::sigaction(SIGTERM, &savedTerm_, nullptr);
    wakeFd = -1;
}

bool StopSignals::stopRequested() { return stopFlag != 0; }

int StopSignals::signalNumber() const { return stopSignal; }

bool StopSignals::waitUntil(const std::timespec& deadline)
{
    for (;;) {
        if (stopRequested()) {
            return true;
        }
        long wait = millisecondsUntil(deadline);
        if (wait == 0) {
            return false;
        }
        struct pollfd wake {
            readEnd_.get(), POLLIN, 0
        };
        int ready = ::poll(&wake, 1, static_cast<int>(wait));
        if (ready > 0) {
            char drain[16];
            while (::read(readEnd_.get(), drain, sizeof drain) > 0) {
            }
        }
    }
}

}  // namespace tvpolicy::cli
