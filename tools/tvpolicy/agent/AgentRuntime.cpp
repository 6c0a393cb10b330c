#include "agent/AgentRuntime.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tvpolicy::cli::agent {

namespace {

std::atomic<bool> stopRequested{false};
std::atomic<bool> reloadRequested{false};
std::atomic<bool> eventArrived{false};
std::atomic<bool> finished{false};
std::atomic<int> wakeFd{-1};
std::atomic<int> guardFd{-1};

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
    if (signal != SIGHUP) {
        poke(guardFd);
    }
    errno = saved;
}

}  // namespace

AgentSignals::AgentSignals()
{
    int fds[2];
    int guardFds[2];
    if (::pipe2(fds, O_CLOEXEC | O_NONBLOCK) != 0 || ::pipe2(guardFds, O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot create the signal pipe");
    }
    readEnd_.reset(fds[0]);
    writeEnd_.reset(fds[1]);
    guardRead_.reset(guardFds[0]);
    guardWrite_.reset(guardFds[1]);
    stopRequested = false;
    reloadRequested = false;
    eventArrived = false;
    finished = false;
    wakeFd = writeEnd_.get();
    guardFd = guardWrite_.get();
    guard_ = std::thread([this] { guard(); });

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
    finished = true;
    poke(guardFd);
    guard_.join();
    wakeFd = -1;
    guardFd = -1;
}

void AgentSignals::guard()
{
    char byte = 0;
    while (::read(guardRead_.get(), &byte, 1) < 0 && errno == EINTR) {
    }
    if (finished) {
        return;
    }
    struct pollfd done {guardRead_.get(), POLLIN, 0};
    auto deadline = std::chrono::steady_clock::now() + stopGrace;
    while (!finished) {
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            static const char message[] = "tvpolicy agent: stopped in the middle of a cycle\n";
            (void)::write(STDERR_FILENO, message, sizeof message - 1);
            std::_Exit(0);
        }
        if (::poll(&done, 1, static_cast<int>(left.count())) > 0) {
            (void)::read(guardRead_.get(), &byte, 1);
        }
    }
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
        struct pollfd wake {readEnd_.get(), POLLIN, 0};
        if (::poll(&wake, 1, static_cast<int>(std::min<long long>(left.count(), 3600000))) > 0) {
            char drain[16];
            while (::read(readEnd_.get(), drain, sizeof drain) > 0) {
            }
        }
    }
}

void notifyServiceManager(const std::string& state)
{
    const char* path = std::getenv("NOTIFY_SOCKET");
    if (path == nullptr || (path[0] != '/' && path[0] != '@') || std::strlen(path) >= sizeof(sockaddr_un::sun_path)) {
        return;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::size_t length = std::strlen(path);
    std::memcpy(address.sun_path, path, length);
    if (address.sun_path[0] == '@') {
        address.sun_path[0] = '\0';  // an abstract socket
    }
    UniqueFd socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    if (socket.get() < 0) {
        return;
    }
    (void)::sendto(socket.get(), state.data(), state.size(), MSG_NOSIGNAL, reinterpret_cast<sockaddr*>(&address),
                   static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length));
}

std::chrono::milliseconds watchdogPeriod()
{
    const char* usec = std::getenv("WATCHDOG_USEC");
    if (usec == nullptr) {
        return std::chrono::milliseconds(0);
    }
    const char* pid = std::getenv("WATCHDOG_PID");
    if (pid != nullptr && std::atol(pid) != static_cast<long>(::getpid())) {
        return std::chrono::milliseconds(0);
    }
    return std::chrono::milliseconds(std::atoll(usec) / 2000);
}

}  // namespace tvpolicy::cli::agent
