// The application inventory against `dpkg-query -W` listing the same database, in the same
// run; and the time from an address being added to the IP notifier's slot being called,
// median and worst of 100 changes, in a network namespace of the benchmark's own.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <tvpolicy/host/ApplicationInventoryItem.h>
#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/Utilities.h>

#include "support/NetNamespace.h"

namespace {

using Clock = std::chrono::steady_clock;

void BM_ApplicationInventory(benchmark::State& state)
{
    std::size_t count = 0;
    for (auto _ : state) {
        auto inventory = com::torvane::api::ApplicationInventoryItem::getInstances();
        count = inventory.size();
        benchmark::DoNotOptimize(inventory);
    }
    state.counters["packages"] = static_cast<double>(count);
}
BENCHMARK(BM_ApplicationInventory)->Unit(benchmark::kMillisecond);

void BM_DpkgQueryW(benchmark::State& state)
{
    std::size_t lines = 0;
    for (auto _ : state) {
        std::string listing = getOutputFromCommand("dpkg-query -W", 8192);
        lines = static_cast<std::size_t>(std::count(listing.begin(), listing.end(), '\n'));
        benchmark::DoNotOptimize(listing);
    }
    state.counters["packages"] = static_cast<double>(lines);
}
BENCHMARK(BM_DpkgQueryW)->Unit(benchmark::kMillisecond);

// Adds or removes an IPv4 address of `index` with one rtnetlink request and waits for the
// kernel's answer.
bool changeAddress(int socket, bool add, unsigned index, in_addr_t address)
{
    struct {
        nlmsghdr header;
        ifaddrmsg message;
        char attributes[64];
    } request{};
    request.header.nlmsg_len = NLMSG_LENGTH(sizeof(ifaddrmsg));
    request.header.nlmsg_type = add ? RTM_NEWADDR : RTM_DELADDR;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_ACK | (add ? NLM_F_CREATE | NLM_F_EXCL : 0);
    request.message.ifa_family = AF_INET;
    request.message.ifa_prefixlen = 32;
    request.message.ifa_index = index;
    for (unsigned short type : {IFA_LOCAL, IFA_ADDRESS}) {
        auto* attribute =
            reinterpret_cast<rtattr*>(reinterpret_cast<char*>(&request) + NLMSG_ALIGN(request.header.nlmsg_len));
        attribute->rta_type = type;
        attribute->rta_len = RTA_LENGTH(sizeof address);
        std::memcpy(RTA_DATA(attribute), &address, sizeof address);
        request.header.nlmsg_len = NLMSG_ALIGN(request.header.nlmsg_len) + RTA_ALIGN(attribute->rta_len);
    }
    if (::send(socket, &request, request.header.nlmsg_len, 0) < 0) {
        return false;
    }
    char answer[512];
    ssize_t got = ::recv(socket, answer, sizeof answer, 0);
    auto* header = reinterpret_cast<nlmsghdr*>(answer);
    return got >= static_cast<ssize_t>(NLMSG_LENGTH(sizeof(nlmsgerr))) && header->nlmsg_type == NLMSG_ERROR &&
           reinterpret_cast<nlmsgerr*>(NLMSG_DATA(header))->error == 0;
}

void BM_IPChangeToSlot(benchmark::State& state)
{
    testing_support::NetNamespace ns;
    if (!ns.valid() || !ns.exec("ip link set lo up") || !ns.enter()) {
        state.SkipWithError(ns.valid() ? "the namespace could not be entered" : ns.skipReason().c_str());
        return;
    }
    int socket = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    unsigned loopback = ::if_nametoindex("lo");

    std::mutex mutex;
    std::condition_variable called;
    std::size_t calls = 0;
    Clock::time_point lastCall;
    com::torvane::api::IPChangeNotifier notifier;
    notifier.connect([&](std::shared_ptr<std::vector<std::string>>) {
        std::lock_guard<std::mutex> lock(mutex);
        lastCall = Clock::now();
        ++calls;
        called.notify_all();
    });
    std::thread watcher([&notifier] { notifier.run(); });

    auto callCount = [&] {
        std::lock_guard<std::mutex> lock(mutex);
        return calls;
    };
    // Waits for the slot call that follows `before` calls; the time it was called.
    auto callAfter = [&](std::size_t before) -> std::optional<Clock::time_point> {
        std::unique_lock<std::mutex> lock(mutex);
        if (!called.wait_for(lock, std::chrono::seconds(5), [&] { return calls > before; })) {
            return std::nullopt;
        }
        return lastCall;
    };

    // The subscription is made on the watcher's thread: change until it is seen.
    in_addr_t probe = inet_addr("10.71.0.1");
    for (int i = 0; i < 50 && callCount() == 0; ++i) {
        changeAddress(socket, true, loopback, probe);
        changeAddress(socket, false, loopback, probe);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    std::vector<double> micros;
    for (auto _ : state) {
        micros.clear();
        for (int i = 0; i < 100; ++i) {
            // Quiet first: the removal of the previous address has been reported.
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            std::size_t before = callCount();
            in_addr_t address = htonl(0x0A480000u + static_cast<unsigned>(i) + 1);  // 10.72.0.x
            Clock::time_point added = Clock::now();
            if (!changeAddress(socket, true, loopback, address)) {
                state.SkipWithError("the address could not be added");
                break;
            }
            std::optional<Clock::time_point> call = callAfter(before);
            if (!call) {
                state.SkipWithError("the slot was not called");
                break;
            }
            micros.push_back(std::chrono::duration<double, std::micro>(*call - added).count());
            std::size_t now = callCount();
            changeAddress(socket, false, loopback, address);
            callAfter(now);
        }
    }
    notifier.stop();
    watcher.join();
    ::close(socket);
    ns.leave();
    if (micros.size() == 100) {
        std::sort(micros.begin(), micros.end());
        state.counters["median_us"] = (micros[49] + micros[50]) / 2;
        state.counters["worst_us"] = micros.back();
    }
}
BENCHMARK(BM_IPChangeToSlot)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
