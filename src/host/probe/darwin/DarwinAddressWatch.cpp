#include "host/probe/darwin/DarwinAddressWatch.h"

#include <SystemConfiguration/SCDynamicStoreKey.h>
#include <SystemConfiguration/SCSchemaDefinitions.h>

namespace tvpolicy::darwin {

bool DarwinAddressWatch::open()
{
    if (!waiter_.valid()) {
        return false;
    }
    SCDynamicStoreContext context{0, this, nullptr, nullptr, nullptr};
    store_.reset(SCDynamicStoreCreate(kCFAllocatorDefault, CFSTR("AddIPAddressListChangeCallbackSCF"),
                                      &DarwinAddressWatch::IPConfigChangedCallback, &context));
    if (!store_) {
        return false;
    }
    CFHolder<CFStringRef> ipv4(SCDynamicStoreKeyCreateNetworkServiceEntity(
        kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCCompAnyRegex, kSCEntNetIPv4));
    CFHolder<CFStringRef> ipv6(SCDynamicStoreKeyCreateNetworkServiceEntity(
        kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCCompAnyRegex, kSCEntNetIPv6));
    if (!ipv4 || !ipv6) {
        return false;
    }
    const void* patterns[] = {ipv4.get(), ipv6.get()};
    CFHolder<CFArrayRef> patternList(CFArrayCreate(kCFAllocatorDefault, patterns, 2, &kCFTypeArrayCallBacks));
    if (!patternList || !SCDynamicStoreSetNotificationKeys(store_.get(), nullptr, patternList.get())) {
        return false;
    }
    source_.reset(SCDynamicStoreCreateRunLoopSource(kCFAllocatorDefault, store_.get(), 0));
    return static_cast<bool>(source_);
}

EventProbe::Wake DarwinAddressWatch::wait(std::chrono::milliseconds timeout)
{
    EventProbe::Wake wake =
        waiter_.wait(source_.get(), kCFRunLoopDefaultMode, timeout, [this] { return changes_ > 0; });
    if (wake == EventProbe::Wake::Event) {
        changes_ = 0;
    }
    return wake;
}

void DarwinAddressWatch::stop() { waiter_.stop(); }

void DarwinAddressWatch::IPConfigChangedCallback(SCDynamicStoreRef, CFArrayRef, void* info)
{
    ++static_cast<DarwinAddressWatch*>(info)->changes_;
}

}  // namespace tvpolicy::darwin
