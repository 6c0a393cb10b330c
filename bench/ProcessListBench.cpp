// Whether a process of a name runs, on a busy machine: about a thousand extra processes are
// started for the run. An absent name is the worst case (every process is looked at). The
// peer is `pgrep -x`, which answers the same question from the same /proc.
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/host/HostProbe.h>

#include <benchmark/benchmark.h>

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "SpawnQuietly.h"

namespace {

using bench::spawnQuietly;
using bench::waitFor;

// At most 15 characters, so that pgrep searches (a longer name it refuses at once).
const char* const absentName = "tvp-no-such-prc";

// The extra processes, started on first use and stopped when the benchmarks end.
class Crowd {
public:
    explicit Crowd(int size)
    {
        for (int i = 0; i < size; ++i) {
            pid_t pid = spawnQuietly({"sleep", "3600"});
            if (pid < 0) {
                throw std::runtime_error("cannot start the extra processes");
            }
            pids_.push_back(pid);
        }
    }
    ~Crowd()
    {
        for (pid_t pid : pids_) {
            kill(pid, SIGKILL);
        }
        for (pid_t pid : pids_) {
            waitFor(pid);
        }
    }
    Crowd(const Crowd&) = delete;
    Crowd& operator=(const Crowd&) = delete;

private:
    std::vector<pid_t> pids_;
};

void startCrowd(benchmark::State& state)
{
    static Crowd crowd(1000);
    state.counters["processes"] = static_cast<double>(tvpolicy::currentHost().processTable().size());
}

void BM_isProcessRunning_absent(benchmark::State& state)
{
    startCrowd(state);
    com::torvane::api::ProcessList list;
    for (auto _ : state) {
        if (list.isProcessRunning(absentName)) {
            state.SkipWithError("an absent name was found");
            break;
        }
    }
}
BENCHMARK(BM_isProcessRunning_absent)->UseRealTime()->Unit(benchmark::kMillisecond);

// Peer: `pgrep -x NAME`, started and waited for, as a shell script or an agent would ask.
void BM_isProcessRunning_absent_peer_pgrep(benchmark::State& state)
{
    startCrowd(state);
    for (auto _ : state) {
        pid_t pid = spawnQuietly({"pgrep", "-x", absentName});
        if (pid < 0 || !WIFEXITED(waitFor(pid))) {
            state.SkipWithError("pgrep did not run");
            break;
        }
    }
}
BENCHMARK(BM_isProcessRunning_absent_peer_pgrep)->UseRealTime()->Unit(benchmark::kMillisecond);

// A whole `tvpolicy run` of a policy whose one check is the absent process, against `pgrep -x`
// and a bare scan of /proc for the same rule (bare_proc_scan), all started as processes and
// taking turns; the counters are the medians of their wall times and the ratios.
void BM_RunAbsentProcess_vs_pgrep_and_bare_scan(benchmark::State& state)
{
    startCrowd(state);
    std::string policyPath = "/tmp/tvpolicy-bench-" + std::to_string(::getpid()) + "-process.xml";
    std::ofstream(policyPath) << "<policy name=\"absent\">\n  <section name=\"absent\" primary=\"true\">\n"
                              << "    <ProcessExists procName=\"" << absentName << "\"/>\n  </section>\n</policy>\n";
    bench::ProcessFigures run, pgrep, bare;
    for (auto _ : state) {
        // Each says "not found" with status 1.
        if (bench::timeProcess({TVPOLICY_CLI, "run", policyPath, "-q"}, run) != 1 ||
            bench::timeProcess({"pgrep", "-x", absentName}, pgrep) != 1 ||
            bench::timeProcess({TVPOLICY_BARE_PROC_SCAN_PROGRAM, absentName}, bare) != 1) {
            state.SkipWithError("a program did not answer 'not found'");
            break;
        }
    }
    std::remove(policyPath.c_str());
    state.counters["run_ms"] = run.medianMs();
    state.counters["pgrep_ms"] = pgrep.medianMs();
    state.counters["bare_scan_ms"] = bare.medianMs();
    state.counters["run_to_pgrep"] = run.medianMs() / pgrep.medianMs();
    state.counters["run_to_bare_scan"] = run.medianMs() / bare.medianMs();
    state.counters["cpu_run_to_pgrep"] = run.medianCpuMs() / pgrep.medianCpuMs();
    state.counters["cpu_run_to_bare_scan"] = run.medianCpuMs() / bare.medianCpuMs();
}
BENCHMARK(BM_RunAbsentProcess_vs_pgrep_and_bare_scan)->Unit(benchmark::kMillisecond)->Iterations(21);

}  // namespace
