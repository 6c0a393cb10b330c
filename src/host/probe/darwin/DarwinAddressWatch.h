#pragma once

#include <SystemConfiguration/SCDynamicStore.h>

#include <tvpolicy/host/EventProbe.h>

#include "host/probe/darwin/DarwinHandles.h"
#include "host/probe/darwin/DarwinRunLoopWaiter.h"

namespace tvpolicy::darwin {

/// Changes of the dynamic store's IPv4 and IPv6 entities of every network service: a session
/// named "AddIPAddressListChangeCallbackSCF" watching the patterns
/// State:/Network/Service/<any>/IPv4 and .../IPv6, its source on the waiting thread's run loop in
/// the default mode while a wait runs. The changed keys themselves are not examined.
class DarwinAddressWatch : public EventProbe::AddressWatch {
public:
    /// Opens the session and sets the patterns; false when any step failed.
    bool open();

    EventProbe::Wake wait(std::chrono::milliseconds timeout) override;
    void stop() override;

private:
    static void IPConfigChangedCallback(SCDynamicStoreRef store, CFArrayRef changedKeys, void* info);

    CFHolder<SCDynamicStoreRef> store_;
    CFHolder<CFRunLoopSourceRef> source_;
    RunLoopWaiter waiter_;
    // Counted by the callback, which runs on the waiting thread inside the wait.
    unsigned long changes_ = 0;
};

}  // namespace tvpolicy::darwin
