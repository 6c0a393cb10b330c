#include <tvpolicy/host/IPChangeNotifier.h>

#include <chrono>
#include <exception>
#include <iostream>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/EventProbe.h>
#include <tvpolicy/host/NetworkInterface.h>

#include "base/LogLine.h"
#include "base/StopLatch.h"
#include "host/NotifierSlots.h"

namespace com::torvane::api {

using tvpolicy::EventProbe;

namespace {

constexpr std::chrono::seconds singleRunLimit{1000};

}  // namespace

IPChangeNotifier::IPChangeNotifier() : stop_(std::make_unique<tvpolicy::StopLatch>()) {}

IPChangeNotifier::~IPChangeNotifier() = default;

void IPChangeNotifier::run() { run(false); }

void IPChangeNotifier::run(bool once)
{
    std::unique_ptr<EventProbe::AddressWatch> watch = tvpolicy::currentEvents().watchAddresses();
    if (!watch) {
        return;
    }
    tvpolicy::StopAttachment attachment(*stop_, [&watch] { watch->stop(); });
    if (!attachment.attached()) {
        return;
    }
    auto deadline = std::chrono::steady_clock::now() + singleRunLimit;
    for (;;) {
        std::chrono::milliseconds timeout(-1);
        if (once) {
            timeout =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
            if (timeout.count() <= 0) {
                return;
            }
        }
        if (watch->wait(timeout) != EventProbe::Wake::Event) {
            return;
        }
        tvi::LogLine(std::clog) << "IP Changed";
        auto addresses = std::make_shared<std::vector<std::string>>();
        NetworkInterface::getIPAddresses(*addresses);
        tvpolicy::fireGuarded(*this, addresses, "IPChangeNotifier");
        if (once) {
            return;
        }
    }
}

std::vector<std::string> IPChangeNotifier::runOnce()
{
    run(true);
    return {};
}

void IPChangeNotifier::stop() { stop_->stop(); }

bool IPChangeNotifier::stopped() const { return stop_->stopped(); }

bool IPChangeNotifier::supported() { return true; }

}  // namespace com::torvane::api
