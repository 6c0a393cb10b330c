#pragma once

#include <atomic>

namespace tvpolicy {

/// The process-wide current probe of one kind: the real backend unless a scoped guard has
/// swapped in another. Guards restore what they replaced, so they nest.
template <typename Probe, Probe& (*systemProbe)()>
class ProbeSlot {
public:
    static Probe& current()
    {
        Probe* probe = slot().load(std::memory_order_acquire);
        return probe != nullptr ? *probe : systemProbe();
    }

    /// Makes `probe` current; returns the one it replaces, for restore.
    static Probe* swapIn(Probe& probe) { return slot().exchange(&probe, std::memory_order_acq_rel); }
    static void restore(Probe* previous) { slot().store(previous, std::memory_order_release); }

private:
    static std::atomic<Probe*>& slot()
    {
        static std::atomic<Probe*> probe{nullptr};
        return probe;
    }
};

}  // namespace tvpolicy
