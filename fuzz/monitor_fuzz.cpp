// The monitor document, in both of its readings (the document of monitors and a lone monitor's
// text), each monitor then performed against the described host of the policy target.
#include <list>
#include <memory>
#include <string>

#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/checks/MonitorResponse.h>

#include "FuzzSupport.h"
#include "ReaderBuffers.h"

using com::torvane::policy::Monitor;

namespace {

void perform(Monitor& monitor, tvpolicy::HostProbe& host)
{
    tvpolicy::ScopedHost described(host);
    delete monitor.perform();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::initialiseIsolated();
    fuzz::reuseReaderBuffers();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<std::list<Monitor*>> monitors(Monitor::parseMonitors(text));
    for (Monitor* monitor : *monitors) {
        perform(*monitor, fuzz::emptyHost());
        delete monitor;
    }
    Monitor lone(text);
    perform(lone, fuzz::emptyHost());
    return 0;
}
