#include <tvpolicy/host/MACChangeNotifier.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <unordered_set>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/NetworkInterface.h>

#include "base/LogLine.h"
#include "base/StopLatch.h"
#include "host/NotifierSlots.h"

namespace com::torvane::api {

namespace {

constexpr int shortestPeriod = 3;

// The keys of a fresh inventory: MAC addresses, or names of interfaces without one.
std::vector<std::string> currentKeys()
{
    NetworkInterfaceMap interfaces;
    NetworkInterface::getInstances(interfaces);
    std::vector<std::string> keys;
    keys.reserve(interfaces.size());
    for (const auto& entry : interfaces) {
        keys.push_back(entry.first);
    }
    NetworkInterface::freeInstances(interfaces);
    return keys;
}

}  // namespace

MACChangeNotifier::MACChangeNotifier(int periodSeconds)
    : period_(std::max(periodSeconds, shortestPeriod)),
      stop_(std::make_unique<tvpolicy::StopLatch>())
{
}

MACChangeNotifier::~MACChangeNotifier() = default;

bool MACChangeNotifier::listsDiffer(const std::vector<std::string>& before, const std::vector<std::string>& after)
{
    if (before.size() != after.size()) {
        return true;
    }
    std::unordered_set<std::string> known(before.begin(), before.end());
    return std::any_of(after.begin(), after.end(), [&known](const std::string& key) { return known.count(key) == 0; });
}

std::vector<std::string> MACChangeNotifier::runOnce()
{
    std::vector<std::string> before = currentKeys();
    for (;;) {
        std::vector<std::string> after = currentKeys();
        if (listsDiffer(before, after)) {
            return after;
        }
        auto next = std::chrono::system_clock::now() + std::chrono::seconds(period_);
        if (stop_->sleepUntil(next)) {
            return after;
        }
    }
}

void MACChangeNotifier::run()
{
    while (!stop_->stopped()) {
        auto keys = std::make_shared<std::vector<std::string>>(runOnce());
        if (stop_->stopped()) {
            return;
        }
        tvi::LogLine(std::clog) << "MAC Changed";
        tvpolicy::fireGuarded(*this, keys, "MACChangeNotifier");
    }
}

void MACChangeNotifier::stop() { stop_->stop(); }

bool MACChangeNotifier::stopped() const { return stop_->stopped(); }

bool MACChangeNotifier::supported() { return true; }

}  // namespace com::torvane::api
