#include "agent/AgentRuntime.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <cerrno>
#include <stdexcept>

namespace tvpolicy::cli::agent {

namespace {

std::atomic<bool> stopRequested{false};
std::atomic<bool> reloadRequested{false};
std::atomic<bool> eventArrived{false};
std::atomic<int> wakeFd{-1};

void poke(const std::atomic<int>& target)
{
    int fd = target.load();
    if (fd >= 0) {
        char byte = 1;
        (void)::write(fd, &byte, 1);
    }
}

void wakeUp() { poke(wakeFd); }

extern "C" void onSignal(int signal)
{
    int saved = errno;
    (signal == SIGHUP ? reloadRequested : stopRequested).store(true);
    wakeUp();
    errno = saved;
}

}  // namespace

AgentSignals::AgentSignals()
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::runtime_error("cannot create the signal pipe");
    }
    readEnd_.reset(fds[0]);
    writeEnd_.reset(fds[1]);
    stopRequested = false;
    reloadRequested = false;
    eventArrived = false;
    wakeFd = writeEnd_.get();

    struct sigaction action {};
    action.sa_handler = &onSignal;
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, &savedInt_);
    ::sigaction(SIGTERM, &action, &savedTerm_);
    ::sigaction(SIGHUP, &action, &savedHup_);
}

AgentSignals::~AgentSignals()
{
    ::sigaction(SIGINT, &savedInt_, nullptr);
    ::sigaction(SIGTERM, &savedTerm_, nullptr);
    ::sigaction(SIGHUP, &savedHup_, nullptr);
    wakeFd = -1;
}

const std::atomic<bool>& AgentSignals::stopFlag() const { return stopRequested; }

void AgentSignals::notify()
{
    eventArrived = true;
    wakeUp();
}

Wake AgentSignals::wait(std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (stopRequested) {
            return Wake::stop;
        }
        if (reloadRequested.exchange(false)) {
            return Wake::reload;
        }
        if (eventArrived.exchange(false)) {
            return Wake::event;
        }
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            return Wake::timeout;
        }
        struct pollfd wake {
            readEnd_.get(), POLLIN, 0
        };
        if (::poll(&wake, 1, static_cast<int>(std::min<long long>(left.count(), 3600000))) > 0) {
            drain();
        }
    }
}

bool AgentSignals::waitForStopOr(int fd)
{
    for (;;) {
        if (stopRequested) {
            return true;
        }
        struct pollfd waits[2] = {{readEnd_.get(), POLLIN, 0}, {fd, POLLIN, 0}};
        if (::poll(waits, 2, -1) > 0) {
            if (waits[1].revents != 0) {
                return stopRequested;
            }
            drain();  // the flags keep what woke it
        }
    }
}

void AgentSignals::drain()
{
    char bytes[16];
    while (::read(readEnd_.get(), bytes, sizeof bytes) > 0) {
    }
}

}  // namespace tvpolicy::cli::agent
