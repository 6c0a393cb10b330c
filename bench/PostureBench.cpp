// The posture checks, 100 of a kind per iteration (as a policy of 100 such checks runs them),
// against the same 100 questions asked of the usual tool by a shell loop in the same run:
// dpkg-query -W, busctl, grep -Eq, stat -c, ss -Hltn, nft list ruleset, sysctl -n. Read each
// pair's times as the ratio. No service manager runs on the build machines, so ServiceActive
// asks systemd's manager as python3-dbusmock plays it on a private bus, and its peer asks the
// same mock with busctl, as systemctl would ask systemd. DiskEncrypted has no usual tool.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskResponse.h>

#include "SpawnQuietly.h"
#include "checks/PostureTask.h"
#if TVPOLICY_BENCH_PRIVATE_BUS
#include "support/PrivateBus.h"
#endif

namespace {

using namespace tvpolicy::checks;

constexpr int checksPerPolicy = 100;

void runChecks(benchmark::State& state, Task* (*create)(), std::vector<Task::Attribute> attributes)
{
    std::vector<std::unique_ptr<Task>> tasks;
    for (int i = 0; i < checksPerPolicy; ++i) {
        tasks.emplace_back(create());
        for (auto& attribute : attributes) {
            tasks.back()->setAttribute(&attribute);
        }
    }
    for (auto _ : state) {
        for (auto& task : tasks) {
            std::unique_ptr<TaskResponse> response(task->perform());
            benchmark::DoNotOptimize(response->passed);
        }
    }
    state.counters["checks"] = checksPerPolicy;
}

void runShellLoop(benchmark::State& state, const std::string& command)
{
    std::string loop = "i=0; while [ $i -lt " + std::to_string(checksPerPolicy) + " ]; do " + command +
                       " >/dev/null 2>&1; i=$((i+1)); done";
    for (auto _ : state) {
        if (!bench::runQuietly({"sh", "-c", loop})) {
            state.SkipWithError("the shell loop failed");
            break;
        }
    }
    state.counters["checks"] = checksPerPolicy;
}

void BM_posture_PackageInstalled(benchmark::State& state)
{
    runChecks(state, createPackageInstalled, {{"name", "dpkg"}, {"required", "1.20"}});
}
void BM_posture_PackageInstalled_peer_dpkg_query(benchmark::State& state) { runShellLoop(state, "dpkg-query -W dpkg"); }

#if TVPOLICY_BENCH_PRIVATE_BUS
// The mocked manager with ssh.service started and enabled, for as long as the benchmarks run.
testing_support::PrivateBus* mockedSystemd()
{
    static std::unique_ptr<testing_support::PrivateBus> bus = [] {
        const char* systemd1 = "org.freedesktop.systemd1";
        const char* path = "/org/freedesktop/systemd1";
        const char* manager = "org.freedesktop.systemd1.Manager";
        auto started = std::make_unique<testing_support::PrivateBus>();
        if (!testing_support::PrivateBus::skipReason().empty() || !started->start() ||
            !started->startMock("systemd",
                                {systemd1, path, "org.freedesktop.DBus.Properties", "Get", "ss", manager, "Version"})) {
            return std::unique_ptr<testing_support::PrivateBus>();
        }
        started->mockControl(systemd1, path, "AddMockUnit", "s", {"ssh.service"});
        started->call({systemd1, path, manager, "StartUnit", "ss", "ssh.service", "replace"});
        return started;
    }();
    return bus.get();
}

void BM_posture_ServiceActive(benchmark::State& state)
{
    if (mockedSystemd() == nullptr) {
        state.SkipWithError("no private bus with the systemd mock here");
        return;
    }
    runChecks(state, createServiceActive, {{"unit", "ssh.service"}});
}
void BM_posture_ServiceActive_peer_busctl(benchmark::State& state)
{
    if (mockedSystemd() == nullptr) {
        state.SkipWithError("no private bus with the systemd mock here");
        return;
    }
    // What `systemctl is-active ssh` asks: the unit's object, then its ActiveState.
    runShellLoop(state,
                 "busctl --system get-property org.freedesktop.systemd1 "
                 "/org/freedesktop/systemd1/unit/ssh_2eservice org.freedesktop.systemd1.Unit ActiveState");
}
#endif

void BM_posture_FileContent(benchmark::State& state)
{
    runChecks(state, createFileContent, {{"path", "/etc/passwd"}, {"pattern", "^root:"}});
}
void BM_posture_FileContent_peer_grep(benchmark::State& state) { runShellLoop(state, "grep -Eq '^root:' /etc/passwd"); }

void BM_posture_FileMode(benchmark::State& state)
{
    runChecks(state, createFileMode, {{"path", "/etc/passwd"}, {"owner", "root"}, {"maxMode", "0644"}});
}
void BM_posture_FileMode_peer_stat(benchmark::State& state) { runShellLoop(state, "stat -c %a:%U:%G /etc/passwd"); }

void BM_posture_PortListening(benchmark::State& state) { runChecks(state, createPortListening, {{"port", "22"}}); }
void BM_posture_PortListening_peer_ss(benchmark::State& state) { runShellLoop(state, "ss -Hltn 'sport = :22'"); }

void BM_posture_FirewallActive(benchmark::State& state) { runChecks(state, createFirewallActive, {}); }
void BM_posture_FirewallActive_peer_nft(benchmark::State& state) { runShellLoop(state, "nft list ruleset"); }

void BM_posture_KernelParameter(benchmark::State& state)
{
    runChecks(state, createKernelParameter, {{"name", "net.ipv4.ip_forward"}, {"value", "0"}});
}
void BM_posture_KernelParameter_peer_sysctl(benchmark::State& state)
{
    runShellLoop(state, "sysctl -n net.ipv4.ip_forward");
}

}  // namespace

BENCHMARK(BM_posture_PackageInstalled)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_PackageInstalled_peer_dpkg_query)->UseRealTime()->Unit(benchmark::kMillisecond);
#if TVPOLICY_BENCH_PRIVATE_BUS
BENCHMARK(BM_posture_ServiceActive)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_ServiceActive_peer_busctl)->UseRealTime()->Unit(benchmark::kMillisecond);
#endif
BENCHMARK(BM_posture_FileContent)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_FileContent_peer_grep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_FileMode)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_FileMode_peer_stat)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_PortListening)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_PortListening_peer_ss)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_FirewallActive)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_FirewallActive_peer_nft)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_KernelParameter)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_posture_KernelParameter_peer_sysctl)->UseRealTime()->Unit(benchmark::kMillisecond);
