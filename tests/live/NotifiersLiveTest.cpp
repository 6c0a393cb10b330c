// The change notifiers against this machine's kernel, in network namespaces the tests make:
// rtnetlink address events for the IP notifier, veth pairs for the MAC notifier; and the
// application inventory against this machine's package database.
#include <tvpolicy/host/ApplicationInventoryItem.h>
#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/MACChangeNotifier.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <sstream>
#include <thread>

#include "host/probe/linux/LinuxHostProbe.h"
#include "host/probe/linux/LinuxNetworkProbe.h"
#include "support/DpkgQuery.h"
#include "support/NetNamespace.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using com::torvane::api::IPChangeNotifier;
using com::torvane::api::MACChangeNotifier;
using testing_support::NetNamespace;
using Strings = std::vector<std::string>;

bool run(const std::string& command) { return std::system((command + " >/dev/null 2>&1").c_str()) == 0; }

bool holds(const Strings& list, const std::string& item)
{
    return std::find(list.begin(), list.end(), item) != list.end();
}

// What a notifier fired, for a test thread to wait on.
class Fired {
public:
    void add(const Strings& list)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        lists_.push_back(list);
        arrived_.notify_all();
    }

    // Waits (at most `limit`) for a list after the first `seen` that satisfies `wanted`.
    bool waitFor(std::size_t seen, const std::function<bool(const Strings&)>& wanted,
                 std::chrono::milliseconds limit = std::chrono::seconds(5))
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return arrived_.wait_for(lock, limit, [&] {
            return std::any_of(lists_.begin() + static_cast<long>(std::min(seen, lists_.size())), lists_.end(), wanted);
        });
    }

    std::size_t count()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return lists_.size();
    }

private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::vector<Strings> lists_;
};

class NotifierNamespace : public testing::Test {
protected:
    void SetUp() override
    {
        if (!ns.valid()) {
            GTEST_SKIP() << ns.skipReason();
        }
        ASSERT_TRUE(
            ns.exec("ip link set lo up && "
                    "ip link add va address 02:00:00:00:0a:01 type veth peer name vb address 02:00:00:00:0b:01 && "
                    "ip link set va up && ip link set vb up"));
    }

    NetNamespace ns;
};

TEST_F(NotifierNamespace, AddressesAddedAndRemovedFireWithTheNewList)
{
    std::string report = ns.inChild([] {
        std::ostringstream out;
        IPChangeNotifier notifier;
        Fired fired;
        notifier.connect([&fired](std::shared_ptr<Strings> list) { fired.add(*list); });
        auto running = std::async(std::launch::async, [&notifier] { notifier.run(); });
        // The subscription is made on the notifier's thread: add the address until a list holding
        // it fires. Another change (the link-local IPv6 address arriving) may fire first.
        bool added = false;
        for (int i = 0; i < 50 && !added; ++i) {
            run("ip addr add 10.66.0.1/24 dev va");
            added = fired.waitFor(
                0, [](const Strings& l) { return holds(l, "10.66.0.1"); }, std::chrono::milliseconds(200));
            if (!added) {
                run("ip addr del 10.66.0.1/24 dev va");
            }
        }
        out << "v4 added " << added << "\n";

        std::size_t seen = fired.count();
        run("ip addr add fd66::1/64 dev va nodad");
        out << "v6 added " << fired.waitFor(seen, [](const Strings& l) { return holds(l, "fd66::1"); }) << "\n";
        seen = fired.count();
        run("ip addr del 10.66.0.1/24 dev va");
        out << "v4 removed "
            << fired.waitFor(seen, [](const Strings& l) { return !holds(l, "10.66.0.1") && holds(l, "fd66::1"); })
            << "\n";
        seen = fired.count();
        run("ip addr del fd66::1/64 dev va");
        out << "v6 removed " << fired.waitFor(seen, [](const Strings& l) { return !holds(l, "fd66::1"); }) << "\n";

        // A burst: the last list holds every address of it, however the events were grouped.
        seen = fired.count();
        std::string batch;
        for (int i = 1; i <= 40; ++i) {
            batch += "addr add 10.67." + std::to_string(i / 10) + "." + std::to_string(i % 10 + 1) + "/32 dev va\n";
        }
        run("printf '" + batch + "' | ip -batch -");
        out << "burst "
            << fired.waitFor(seen, [](const Strings& l) { return holds(l, "10.67.0.2") && holds(l, "10.67.4.1"); })
            << "\n";

        notifier.stop();
        out << "stopped " << (running.wait_for(std::chrono::seconds(1)) == std::future_status::ready) << "\n";
        return out.str();
    });
    EXPECT_EQ(report, "v4 added 1\nv6 added 1\nv4 removed 1\nv6 removed 1\nburst 1\nstopped 1\n");
}

TEST_F(NotifierNamespace, RunOnceReturnsAfterOneChange)
{
    std::string report = ns.inChild([] {
        IPChangeNotifier notifier;
        Fired fired;
        notifier.connect([&fired](std::shared_ptr<Strings> list) { fired.add(*list); });
        auto once = std::async(std::launch::async, [&notifier] { return notifier.runOnce(); });
        // Addresses keep changing until the notifier, once subscribed, has seen one.
        for (int i = 1; i <= 100 && once.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready; ++i) {
            run("ip addr add 10.68.0." + std::to_string(i) + "/32 dev va");
        }
        bool returned = once.wait_for(std::chrono::seconds(1)) == std::future_status::ready;
        if (!returned) {
            notifier.stop();
            return std::string("runOnce did not return");
        }
        return "empty " + std::to_string(once.get().empty()) + " fired " + std::to_string(fired.count());
    });
    EXPECT_EQ(report, "empty 1 fired 1");
}

// The real Linux backend, with a step run before chosen inventory reads, so that changes land
// between two polls of the MAC notifier.
class SteppedNetwork : public tvpolicy::LinuxNetworkProbe {
public:
    std::map<int, std::function<void()>> before;
    mutable std::vector<std::chrono::steady_clock::time_point> readTimes;

    std::optional<std::vector<AddressEntry>> interfaceAddresses() const override
    {
        int read = static_cast<int>(readTimes.size()) + 1;
        readTimes.push_back(std::chrono::steady_clock::now());
        auto step = before.find(read);
        if (step != before.end()) {
            step->second();
        }
        return LinuxNetworkProbe::interfaceAddresses();
    }
};

TEST_F(NotifierNamespace, NewVethPairIsOneMacChangeAndReorderingIsNone)
{
    ASSERT_TRUE(ns.exec("ip link add vc address 02:00:00:00:0c:01 type veth peer name vd address 02:00:00:00:0d:01"));
    std::string report = ns.inChild([] {
        SteppedNetwork network;
        // Read 1 is the old list; before read 2 the first pair is made again behind the second
        // (same addresses, another order); before read 3 a new pair appears.
        network.before[2] = [] {
            run("ip link del va");
            run("ip link add va address 02:00:00:00:0a:01 type veth peer name vb address 02:00:00:00:0b:01");
        };
        network.before[3] = [] {
            run("ip link add ve address 02:00:00:00:0e:01 type veth peer name vf address 02:00:00:00:0f:01");
        };
        tvpolicy::ScopedNetwork scoped(network);
        MACChangeNotifier notifier(1);
        std::vector<Strings> fired;
        notifier.connect([&](std::shared_ptr<Strings> keys) {
            fired.push_back(*keys);
            notifier.stop();
        });
        notifier.run();
        std::ostringstream out;
        out << "changes " << fired.size() << " reads " << network.readTimes.size();
        for (const std::string& key : fired.empty() ? Strings() : fired.front()) {
            out << " " << key;
        }
        if (network.readTimes.size() >= 3) {
            auto gap = network.readTimes[2] - network.readTimes[1];
            out << " period " << (gap >= std::chrono::milliseconds(2900) ? "floored" : "short");
        }
        return out.str();
    });
    EXPECT_EQ(report,
              "changes 1 reads 3 02:00:00:00:0A:01 02:00:00:00:0B:01 02:00:00:00:0C:01 02:00:00:00:0D:01 "
              "02:00:00:00:0E:01 02:00:00:00:0F:01 period floored");
}

TEST_F(NotifierNamespace, StopEndsAPollingMacNotifierWithinASecond)
{
    std::string report = ns.inChild([] {
        MACChangeNotifier notifier(30);
        auto running = std::async(std::launch::async, [&notifier] { notifier.run(); });
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        notifier.stop();
        return std::string(running.wait_for(std::chrono::seconds(1)) == std::future_status::ready ? "stopped"
                                                                                                  : "still running");
    });
    EXPECT_EQ(report, "stopped");
}

TEST(ApplicationInventoryLive, DpkgDatabaseAgreesWithDpkgQuery)
{
    if (!std::filesystem::exists("/var/lib/dpkg/status")) {
        GTEST_SKIP() << "this machine has no dpkg database";
    }
    std::map<std::string, std::string> expected = testing_support::installedByDpkgQuery();
    std::map<std::string, std::string> listed;
    for (const auto& item : com::torvane::api::ApplicationInventoryItem::getInstances()) {
        listed[item->getName()] = item->getVersion();
    }
    EXPECT_GT(expected.size(), 0u);
    EXPECT_EQ(listed, expected);
}

TEST(ApplicationInventoryLive, RpmIsAskedWhenThereIsNoDpkgDatabase)
{
    testing_support::TempDir root;
    std::filesystem::path rpm = root.write("usr/bin/rpm",
                                           "#!/bin/sh\n[ \"$1\" = -qa ] || exit 1\n"
                                           "printf 'bash\\t5.2.15-3.fc39\\nkernel\\t1:6.5.6-300.fc39\\n'\n");
    std::filesystem::permissions(rpm, std::filesystem::perms::owner_all);
    auto listing = tvpolicy::LinuxHostProbe(root.path().string()).applicationListing();
    EXPECT_EQ(listing.format, tvpolicy::HostProbe::ApplicationListing::Format::RpmQuery);
    EXPECT_EQ(listing.text, "bash\t5.2.15-3.fc39\nkernel\t1:6.5.6-300.fc39\n");

    std::filesystem::remove(rpm);
    EXPECT_EQ(tvpolicy::LinuxHostProbe(root.path().string()).applicationListing().format,
              tvpolicy::HostProbe::ApplicationListing::Format::None);
}

}  // namespace
