// The interface inventory of a namespace with 50 veth pairs (100 interfaces, 50 addresses)
// against `ip -j addr` listing the same namespace, in the same run.
#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>

#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/Utilities.h>

#include "support/NetNamespace.h"

namespace {

using com::torvane::api::NetworkInterface;

// Made on first use and entered by this (single-threaded) process; left and removed at exit.
testing_support::NetNamespace* fiftyPairs(benchmark::State& state)
{
    static std::unique_ptr<testing_support::NetNamespace> ns = [] {
        auto made = std::make_unique<testing_support::NetNamespace>();
        if (!made->valid()) {
            return made;
        }
        std::string batch = "/tmp/" + made->name() + ".batch";
        {
            std::ofstream out(batch);
            for (int i = 0; i < 50; ++i) {
                std::string a = "pa" + std::to_string(i);
                out << "link add " << a << " type veth peer name pb" << i << "\n"
                    << "addr add 10.66." << i << ".1/24 dev " << a << "\n"
                    << "link set " << a << " up\nlink set pb" << i << " up\n";
            }
        }
        bool ok = made->exec("ip -batch " + batch) && made->enter();
        std::remove(batch.c_str());
        if (!ok) {
            made.reset();
        }
        return made;
    }();
    if (!ns || !ns->valid()) {
        state.SkipWithError(ns ? ns->skipReason().c_str() : "the namespace could not be set up");
        return nullptr;
    }
    return ns.get();
}

void BM_GetInstances(benchmark::State& state)
{
    if (fiftyPairs(state) == nullptr) {
        return;
    }
    std::size_t count = 0;
    for (auto _ : state) {
        com::torvane::api::NetworkInterfaceMap map;
        NetworkInterface::getInstances(map);
        count = map.size();
        NetworkInterface::freeInstances(map);
    }
    state.counters["interfaces"] = static_cast<double>(count);
}
BENCHMARK(BM_GetInstances)->Unit(benchmark::kMillisecond);

void BM_IpJsonAddr(benchmark::State& state)
{
    if (fiftyPairs(state) == nullptr) {
        return;
    }
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::string json = getOutputFromCommand("ip -j addr", 8192);
        bytes = json.size();
        benchmark::DoNotOptimize(json);
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_IpJsonAddr)->Unit(benchmark::kMillisecond);

}  // namespace
