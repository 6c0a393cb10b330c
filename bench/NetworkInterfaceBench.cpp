// The interface inventory of a namespace with 50 veth pairs (100 interfaces, 50 addresses)
// against `ip -j addr` listing the same namespace, in the same run: the library's inventory in
// this process, and `tvpolicy interfaces --json --no-guests` as a whole process, each taking
// turns with `ip -j addr` started as a whole process (the namespace's own sysfs is mounted for
// both, as `ip netns exec` does).
#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <memory>

#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/Utilities.h>

#include "SpawnQuietly.h"
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

void BM_GetInstances_vs_ip(benchmark::State& state)
{
    if (fiftyPairs(state) == nullptr) {
        return;
    }
    std::vector<double> inventory;
    bench::ProcessFigures ip;
    for (auto _ : state) {
        auto start = std::chrono::steady_clock::now();
        com::torvane::api::NetworkInterfaceMap map;
        NetworkInterface::getInstances(map);
        NetworkInterface::freeInstances(map);
        inventory.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (bench::timeProcess({"ip", "-j", "addr"}, ip) != 0) {
            state.SkipWithError("ip -j addr failed");
            break;
        }
    }
    bench::ProcessFigures ours;
    ours.seconds = inventory;
    state.counters["getInstances_ms"] = ours.medianMs();
    state.counters["ip_ms"] = ip.medianMs();
    state.counters["getInstances_to_ip"] = ours.medianMs() / ip.medianMs();
}
BENCHMARK(BM_GetInstances_vs_ip)->Unit(benchmark::kMillisecond)->Iterations(41);

void BM_InterfacesCommand_vs_ip(benchmark::State& state)
{
    if (fiftyPairs(state) == nullptr) {
        return;
    }
    bench::ProcessFigures command;
    bench::ProcessFigures ip;
    for (auto _ : state) {
        if (bench::timeProcess({TVPOLICY_CLI, "interfaces", "--json", "--no-guests"}, command) != 0 ||
            bench::timeProcess({"ip", "-j", "addr"}, ip) != 0) {
            state.SkipWithError("a program failed");
            break;
        }
    }
    state.counters["tvpolicy_ms"] = command.medianMs();
    state.counters["ip_ms"] = ip.medianMs();
    state.counters["tvpolicy_to_ip"] = command.medianMs() / ip.medianMs();
    state.counters["cpu_tvpolicy_to_ip"] = command.medianCpuMs() / ip.medianCpuMs();
}
BENCHMARK(BM_InterfacesCommand_vs_ip)->Unit(benchmark::kMillisecond)->Iterations(41);

}  // namespace
