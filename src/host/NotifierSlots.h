#pragma once

#include <exception>
#include <iostream>
#include <memory>

#include <tvpolicy/base/Signal.h>
#include <tvpolicy/base/Timestamp.h>

namespace tvpolicy {

/// Fires `signal` with `payload` for a change notifier. A slot that throws does not end the
/// watch: the failure is logged as "<who>: a slot failed: <reason>" and the watch goes on.
template <typename T>
void fireGuarded(com::torvane::util::Signal<T>& signal, std::shared_ptr<T> payload, const char* who)
{
    try {
        signal.fire(std::move(payload));
    } catch (const std::exception& failure) {
        tvi::tslog(std::clog) << who << ": a slot failed: " << failure.what() << std::endl;
    } catch (...) {
        tvi::tslog(std::clog) << who << ": a slot failed" << std::endl;
    }
}

}  // namespace tvpolicy
