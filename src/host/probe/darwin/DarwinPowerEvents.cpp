#include "host/probe/darwin/DarwinPowerEvents.h"

#include <cstdint>

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOMessage.h>

namespace tvpolicy::darwin {

static_assert(kIOMessageCanSystemSleep == parse::powerMessageCanSystemSleep, "can-system-sleep message");
static_assert(kIOMessageSystemWillSleep == parse::powerMessageSystemWillSleep, "system-will-sleep message");
static_assert(kIOMessageSystemWillPowerOn == parse::powerMessageSystemWillPowerOn, "will-power-on message");
static_assert(kIOMessageSystemHasPoweredOn == parse::powerMessageSystemHasPoweredOn, "has-powered-on message");

DarwinPowerEvents::DarwinPowerEvents(Handler handler) : handler_(std::move(handler)) {}

DarwinPowerEvents::~DarwinPowerEvents() { disable(); }

bool DarwinPowerEvents::enable()
{
    if (rootPort_ != IO_OBJECT_NULL) {
        return true;
    }
    rootPort_ = IORegisterForSystemPower(this, &notifyPort_, &DarwinPowerEvents::callback, &notifier_);
    if (rootPort_ == IO_OBJECT_NULL) {
        return false;
    }
    CFRunLoopAddSource(CFRunLoopGetCurrent(), IONotificationPortGetRunLoopSource(notifyPort_), kCFRunLoopCommonModes);
    return true;
}

bool DarwinPowerEvents::disable()
{
    if (rootPort_ == IO_OBJECT_NULL) {
        return false;
    }
    CFRunLoopRemoveSource(CFRunLoopGetCurrent(), IONotificationPortGetRunLoopSource(notifyPort_),
                          kCFRunLoopCommonModes);
    bool deregistered = IODeregisterForSystemPower(&notifier_) == kIOReturnSuccess;
    IOServiceClose(rootPort_);
    IONotificationPortDestroy(notifyPort_);
    rootPort_ = IO_OBJECT_NULL;
    notifyPort_ = nullptr;
    notifier_ = IO_OBJECT_NULL;
    return deregistered;
}

void DarwinPowerEvents::runStandalone() { CFRunLoopRun(); }

void DarwinPowerEvents::callback(void* context, io_service_t, natural_t message, void* argument)
{
    auto* self = static_cast<DarwinPowerEvents*>(context);
    std::optional<parse::PowerEvent> event = parse::powerEventForMessage(message);
    if (!event) {
        return;  // not ours to answer
    }
    try {
        if (self->handler_) {
            self->handler_(*event);
        }
    } catch (...) {
        // A failing handler must not keep the system awake: the answer below still goes.
    }
    if (event->acknowledge) {
        IOAllowPowerChange(self->rootPort_, static_cast<long>(reinterpret_cast<std::intptr_t>(argument)));
    }
}

}  // namespace tvpolicy::darwin
