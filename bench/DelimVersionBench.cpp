// Version comparisons per second with the library log discarded, against glibc's strverscmp
// (a plain version-order comparison of two texts) on the same pairs.
#include <tvpolicy/checks/DelimVersion.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

const std::vector<std::pair<std::string, std::string>>& pairs()
{
    static const std::vector<std::pair<std::string, std::string>> versions = {
        {"10.6.8", "10.6"},           {"10.5.9", "10.6"},     {"10.7", "10.6.8"},     {"4.2", "4.2"},
        {"2011.03.15", "2011.04.01"}, {"10.4.11", "10.4.11"}, {"1.2.3.4", "1.2.3.5"}, {"12", "9"}};
    return versions;
}

class DiscardedLog {
public:
    DiscardedLog() : saved_(std::clog.rdbuf(nullptr)) {}
    ~DiscardedLog() { std::clog.rdbuf(saved_); }

private:
    std::streambuf* saved_;
};

void BM_versionAtLeast(benchmark::State& state)
{
    DiscardedLog quiet;
    DelimVersion version(static_cast<short>(state.range(0)));
    const auto& versions = pairs();
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [system, requested] = versions[i++ % versions.size()];
        benchmark::DoNotOptimize(version.versionAtLeast(requested, ".", system));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_versionAtLeast)->Arg(DelimVersion::gte)->Arg(DelimVersion::gt);

// Peer: strverscmp on the same pairs (no word splitting, no log).
void BM_versionAtLeast_peer_strverscmp(benchmark::State& state)
{
    const auto& versions = pairs();
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [system, requested] = versions[i++ % versions.size()];
        benchmark::DoNotOptimize(::strverscmp(system.c_str(), requested.c_str()) >= 0);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_versionAtLeast_peer_strverscmp);

}  // namespace
