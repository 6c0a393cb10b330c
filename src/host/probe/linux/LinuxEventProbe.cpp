#include "host/probe/linux/LinuxEventProbe.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ctime>
#include <memory>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include <tvpolicy/base/OwnedFd.h>
#include "host/parse/NetlinkMessages.h"
#include "host/probe/linux/SdBus.h"

// The address-message parser is OS-neutral and carries the kernel's numbers itself.
static_assert(tvpolicy::parse::netlinkHeaderSize == sizeof(nlmsghdr) &&
              tvpolicy::parse::netlinkHeaderSize == NLMSG_HDRLEN);
static_assert(tvpolicy::parse::netlinkNewAddress == RTM_NEWADDR &&
              tvpolicy::parse::netlinkDeletedAddress == RTM_DELADDR);

namespace tvpolicy {

namespace {

using Clock = std::chrono::steady_clock;

// Room for a burst of address messages (an interface coming up with many addresses) before
// the kernel has to drop some; a drop is still reported as a change.
constexpr int receiveBuffer = 1 << 20;

enum class Ready { Source, Woken, TimedOut, Failed };

// Waits for `events` on `fd` or for the wake-up descriptor, at most until `deadline` (none when
// it is empty). `busTimeout` is an extra limit in microseconds of the monotonic clock
// (UINT64_MAX: none) after which the source is reported ready so that it can do its own work.
Ready pollWithWake(int fd, short events, int wakeFd, const std::optional<Clock::time_point>& deadline,
                   std::uint64_t busTimeout = UINT64_MAX)
{
    for (;;) {
        int timeout = -1;
        if (deadline) {
            auto left = std::chrono::duration_cast<std::chrono::milliseconds>(*deadline - Clock::now()).count();
            if (left <= 0) {
                return Ready::TimedOut;
            }
            timeout = static_cast<int>(std::min<long long>(left, 3'600'000));
        }
        if (busTimeout != UINT64_MAX) {
            std::timespec now{};
            ::clock_gettime(CLOCK_MONOTONIC, &now);
            std::uint64_t nowMicros = static_cast<std::uint64_t>(now.tv_sec) * 1'000'000 + now.tv_nsec / 1000;
            long long busLeft =
                busTimeout > nowMicros ? static_cast<long long>((busTimeout - nowMicros + 999) / 1000) : 0;
            timeout = timeout < 0 ? static_cast<int>(std::min<long long>(busLeft, 3'600'000))
                                  : static_cast<int>(std::min<long long>(busLeft, timeout));
        }
        pollfd fds[2] = {{fd, events, 0}, {wakeFd, POLLIN, 0}};
        int result = ::poll(fds, 2, timeout);
        if (result < 0) {
            if (errno == EINTR) {
                continue;
            }
            return Ready::Failed;
        }
        if ((fds[1].revents & POLLIN) != 0) {
            return Ready::Woken;
        }
        if (fds[0].revents != 0 || (result == 0 && busTimeout != UINT64_MAX)) {
            return Ready::Source;
        }
        if (result == 0 && deadline && Clock::now() >= *deadline) {
            return Ready::TimedOut;
        }
    }
}

// How a wait ends after `ready`; nothing when the source has something to read.
std::optional<EventProbe::Wake> endOfWait(Ready ready)
{
    switch (ready) {
    case Ready::Woken: return EventProbe::Wake::Stopped;
    case Ready::TimedOut: return EventProbe::Wake::TimedOut;
    case Ready::Failed: return EventProbe::Wake::Failed;
    case Ready::Source: break;
    }
    return std::nullopt;
}

std::optional<Clock::time_point> deadlineOf(std::chrono::milliseconds timeout)
{
    if (timeout.count() < 0) {
        return std::nullopt;
    }
    return Clock::now() + timeout;
}

void wakeUp(const OwnedFd& wake)
{
    std::uint64_t one = 1;
    // The counter only grows: a wake-up is never lost, and it stays readable (stop is final).
    while (::write(wake.get(), &one, sizeof one) < 0 && errno == EINTR) {
    }
}

class NetlinkAddressWatch : public EventProbe::AddressWatch {
public:
    bool open()
    {
        wake_.reset(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
        socket_.reset(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
        if (!wake_.valid() || !socket_.valid()) {
            return false;
        }
        ::setsockopt(socket_.get(), SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
        sockaddr_nl address{};
        address.nl_family = AF_NETLINK;
        address.nl_groups = RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
        return ::bind(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }

    EventProbe::Wake wait(std::chrono::milliseconds timeout) override
    {
        std::optional<Clock::time_point> deadline = deadlineOf(timeout);
        for (;;) {
            if (auto end = endOfWait(pollWithWake(socket_.get(), POLLIN, wake_.get(), deadline))) {
                return *end;
            }
            int changes = drain();
            if (changes < 0) {
                return EventProbe::Wake::Failed;
            }
            if (changes > 0) {
                return EventProbe::Wake::Event;
            }
        }
    }

    void stop() override { wakeUp(wake_); }

private:
    // Reads everything queued; the number of address changes (a lost burst counts as one), or
    // -1 when the socket failed.
    int drain()
    {
        int changes = 0;
        for (;;) {
            ssize_t got = ::recv(socket_.get(), buffer_.data(), buffer_.size(), MSG_DONTWAIT);
            if (got < 0) {
                if (errno == EINTR) {
                    continue;
                }
                if (errno == ENOBUFS) {
                    // The kernel dropped messages: the addresses changed, how is unknown.
                    ++changes;
                    continue;
                }
                return errno == EAGAIN || errno == EWOULDBLOCK ? changes : -1;
            }
            if (got == 0) {
                return changes;
            }
            changes += parse::summarizeNetlink(buffer_.data(), static_cast<std::size_t>(got)).addressChanges;
        }
    }

    OwnedFd socket_;
    OwnedFd wake_;
    std::vector<unsigned char> buffer_ = std::vector<unsigned char>(std::size_t{64} * 1024);
};

struct SlotUnref {
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

const char* const logindName = "org.freedesktop.login1";
const char* const logindPath = "/org/freedesktop/login1";
const char* const logindManager = "org.freedesktop.login1.Manager";

class LogindPowerWatch : public EventProbe::PowerWatch {
public:
    // Connects, subscribes to PrepareForSleep and takes the first delay inhibitor.
    Result<void> open()
    {
        wake_.reset(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
        if (!wake_.valid()) {
            return Failure{std::string("cannot create an event descriptor: ") + std::strerror(errno)};
        }
        if (!bus_.connected()) {
            return Failure{"logind cannot be reached: " + bus_.lastError()};
        }
        sd_bus_slot* slot = nullptr;
        int result = sd_bus_match_signal(bus_.handle(), &slot, logindName, logindPath, logindManager, "PrepareForSleep",
                                         &LogindPowerWatch::onPrepareForSleep, this);
        if (result < 0) {
            return Failure{std::string("cannot subscribe to PrepareForSleep: ") + std::strerror(-result)};
        }
        match_.reset(slot);
        if (!takeInhibitor()) {
            return Failure{"logind cannot be reached: " + bus_.lastError()};
        }
        return {};
    }

    EventProbe::Wake wait(std::chrono::milliseconds timeout, std::vector<EventProbe::PowerEvent>& events) override
    {
        std::optional<Clock::time_point> deadline = deadlineOf(timeout);
        sd_bus* bus = bus_.handle();
        for (;;) {
            int processed = 0;
            while ((processed = sd_bus_process(bus, nullptr)) > 0) {
            }
            if (processed < 0) {
                return EventProbe::Wake::Failed;
            }
            if (!pending_.empty()) {
                events.swap(pending_);
                pending_.clear();
                return EventProbe::Wake::Event;
            }
            int busEvents = sd_bus_get_events(bus);
            std::uint64_t busTimeout = UINT64_MAX;
            if (busEvents < 0 || sd_bus_get_timeout(bus, &busTimeout) < 0) {
                return EventProbe::Wake::Failed;
            }
            if (auto end = endOfWait(pollWithWake(sd_bus_get_fd(bus), static_cast<short>(busEvents), wake_.get(),
                                                  deadline, busTimeout))) {
                return *end;
            }
        }
    }

    void allow(const EventProbe::PowerEvent& event) override
    {
        if (event.message == EventProbe::systemWillSleep || event.message == EventProbe::canSystemSleep) {
            // Releasing the delay inhibitor is logind's acknowledgement.
            inhibitor_.reset();
        }
    }

    void stop() override { wakeUp(wake_); }

private:
    bool takeInhibitor()
    {
        linux_bus::Message reply = bus_.call(logindName, logindPath, logindManager, "Inhibit", [](sd_bus_message* m) {
            return sd_bus_message_append(m, "ssss", "sleep", "tvpolicy",
                                         "Tells the compliance agent before the system sleeps", "delay");
        });
        int fd = -1;
        if (!reply || sd_bus_message_read(reply.get(), "h", &fd) <= 0) {
            return false;
        }
        // The descriptor belongs to the reply; keep a copy of our own.
        inhibitor_.reset(::fcntl(fd, F_DUPFD_CLOEXEC, 3));
        return inhibitor_.valid();
    }

    static int onPrepareForSleep(sd_bus_message* message, void* context, sd_bus_error*)
    {
        auto* self = static_cast<LogindPowerWatch*>(context);
        int sleeping = 0;
        if (sd_bus_message_read(message, "b", &sleeping) <= 0) {
            return 0;
        }
        if (!sleeping && !self->inhibitor_.valid()) {
            // Awake again: hold off the next sleep until the agent has been told.
            self->takeInhibitor();
        }
        std::uint32_t kind = sleeping ? EventProbe::systemWillSleep : EventProbe::systemHasPoweredOn;
        self->pending_.push_back({kind, ++self->count_});
        return 0;
    }

    linux_bus::SystemBus bus_;
    std::unique_ptr<sd_bus_slot, SlotUnref> match_;
    OwnedFd inhibitor_;
    OwnedFd wake_;
    std::vector<EventProbe::PowerEvent> pending_;
    std::uint64_t count_ = 0;
};

}  // namespace

std::unique_ptr<EventProbe::AddressWatch> LinuxEventProbe::watchAddresses()
{
    auto watch = std::make_unique<NetlinkAddressWatch>();
    if (!watch->open()) {
        return nullptr;
    }
    return watch;
}

Result<std::unique_ptr<EventProbe::PowerWatch>> LinuxEventProbe::watchPower()
{
    auto watch = std::make_unique<LogindPowerWatch>();
    if (auto opened = watch->open(); !opened) {
        return Failure{opened.error()};
    }
    return std::unique_ptr<PowerWatch>(std::move(watch));
}

EventProbe& systemEvents()
{
    static LinuxEventProbe probe;
    return probe;
}

}  // namespace tvpolicy
