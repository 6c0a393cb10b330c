// Whether a process of a name runs, on a busy machine: about a thousand extra processes are
// started for the run. An absent name is the worst case (every process is looked at). The
// peer is `pgrep -x`, which answers the same question from the same /proc.
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/host/HostProbe.h>

#include <benchmark/benchmark.h>

#include <csignal>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
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

}  // namespace
