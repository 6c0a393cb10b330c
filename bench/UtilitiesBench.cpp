// Tokenising and URL encoding, the helpers every policy and request goes through.
// The peer is the standard library doing the same work in the plainest way.
#include <tvpolicy/host/Utilities.h>

#include <benchmark/benchmark.h>

#include <sstream>
#include <vector>

namespace {

std::string versionList()
{
    std::string text;
    for (int i = 0; i < 2000; ++i) {
        text += "10.6." + std::to_string(i) + ",,";
    }
    return text;
}

void BM_split(benchmark::State& state)
{
    std::string text = versionList();
    std::string delimiters = ",.";
    for (auto _ : state) {
        std::vector<std::string> tokens;
        split(text, delimiters, tokens);
        benchmark::DoNotOptimize(tokens.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_split);

// Peer: std::getline over a stream, one delimiter only (so it does less work than split).
void BM_split_peer_getline(benchmark::State& state)
{
    std::string text = versionList();
    for (auto _ : state) {
        std::vector<std::string> tokens;
        std::istringstream stream(text);
        std::string token;
        while (std::getline(stream, token, ',')) {
            if (!token.empty()) {
                tokens.push_back(token);
            }
        }
        benchmark::DoNotOptimize(tokens.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_split_peer_getline);

void BM_urlencode(benchmark::State& state)
{
    std::string text;
    for (int i = 0; i < 200; ++i) {
        text += "user name=a&b/c:d;e?f ";
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(urlencode(text));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_urlencode);

}  // namespace
