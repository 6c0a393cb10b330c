#include "host/probe/darwin/DarwinAddressEvents.h"

#include <SystemConfiguration/SCDynamicStore.h>
#include <SystemConfiguration/SystemConfiguration.h>
#include <SystemConfiguration/SCDynamicStoreKey.h>
#include <SystemConfiguration/SCSchemaDefinitions.h>

#include "host/probe/darwin/DarwinHandles.h"

namespace tvpolicy::darwin {

namespace {

void IPConfigChangedCallback(SCDynamicStoreRef, CFArrayRef, void* info)
{
    auto* changed = static_cast<std::function<void()>*>(info);
    try {
        (*changed)();
    } catch (...) {
        // Nothing crosses the run loop's C frames.
    }
}

int storeError()
{
    int error = SCError();
    return error != 0 ? error : 1001;
}

}  // namespace

DarwinAddressEvents::DarwinAddressEvents(std::function<void()> changed) : changed_(std::move(changed)) {}

int DarwinAddressEvents::run(bool once)
{
    SCDynamicStoreContext context{0, &changed_, nullptr, nullptr, nullptr};
    CFHolder<SCDynamicStoreRef> store(SCDynamicStoreCreate(
        kCFAllocatorDefault, CFSTR("AddIPAddressListChangeCallbackSCF"), &IPConfigChangedCallback, &context));
    if (!store) {
        return storeError();
    }
    CFHolder<CFStringRef> ipv4(SCDynamicStoreKeyCreateNetworkServiceEntity(
        kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCCompAnyRegex, kSCEntNetIPv4));
    CFHolder<CFStringRef> ipv6(SCDynamicStoreKeyCreateNetworkServiceEntity(
        kCFAllocatorDefault, kSCDynamicStoreDomainState, kSCCompAnyRegex, kSCEntNetIPv6));
    if (!ipv4 || !ipv6) {
        return -1;
    }
    const void* patterns[] = {ipv4.get(), ipv6.get()};
    CFHolder<CFArrayRef> patternList(CFArrayCreate(kCFAllocatorDefault, patterns, 2, &kCFTypeArrayCallBacks));
    if (!patternList) {
        return -1;
    }
    if (!SCDynamicStoreSetNotificationKeys(store.get(), nullptr, patternList.get())) {
        return storeError();
    }
    CFHolder<CFRunLoopSourceRef> source(SCDynamicStoreCreateRunLoopSource(kCFAllocatorDefault, store.get(), 0));
    if (!source) {
        return storeError();
    }
    CFRunLoopAddSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopDefaultMode);
    if (once) {
        CFRunLoopRunInMode(kCFRunLoopDefaultMode, 1000.0, true);
    } else {
        CFRunLoopRun();
    }
    CFRunLoopRemoveSource(CFRunLoopGetCurrent(), source.get(), kCFRunLoopDefaultMode);
    return 0;
}

}  // namespace tvpolicy::darwin
