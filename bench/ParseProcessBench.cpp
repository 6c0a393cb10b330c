// Parsing the large policy as an embedder's whole program does (read the file, parse it with
// the library's log on), against a program that parses the same file with the XML library's
// bare SAX2 reader. The three programs take turns, so that a busy machine slows each alike; the
// counters are medians of wall time and the peak resident memory of each program.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "LargePolicy.h"
#include "SpawnQuietly.h"

namespace {

using bench::ProcessFigures;

// Runs `argv` and records it; a failed run ends the benchmark.
void runOrThrow(const std::vector<std::string>& argv, ProcessFigures& figures)
{
    if (bench::timeProcess(argv, figures) != 0) {
        throw std::runtime_error(argv[0] + " failed");
    }
}

void BM_PolicyParseProcess_vs_BareSaxProcess(benchmark::State& state)
{
    std::string base = "/tmp/tvpolicy-bench-" + std::to_string(::getpid());
    std::string policyPath = base + "-parse.xml", logPath = base + "-parse.log";
    const std::string& text = tvpolicy::bench::largePolicyText();
    std::ofstream(policyPath) << text;
    std::string sections = std::to_string(tvpolicy::bench::largePolicySections);
    ProcessFigures bare, discarded, logged;
    for (auto _ : state) {
        runOrThrow({TVPOLICY_BARE_SAX_PROGRAM, policyPath}, bare);
        runOrThrow({TVPOLICY_PARSE_PROGRAM, policyPath, sections}, discarded);
        runOrThrow({TVPOLICY_PARSE_PROGRAM, policyPath, sections, "--log", logPath}, logged);
    }
    std::remove(policyPath.c_str());
    std::remove(logPath.c_str());
    double documentMB = static_cast<double>(text.size()) / 1e6;
    double bareMs = bare.medianMs();
    state.counters["doc_MB"] = documentMB;
    state.counters["bare_sax_ms"] = bareMs;
    state.counters["log_null_ms"] = discarded.medianMs();
    state.counters["log_file_ms"] = logged.medianMs();
    state.counters["ratio_log_null"] = discarded.medianMs() / bareMs;
    state.counters["ratio_log_file"] = logged.medianMs() / bareMs;
    state.counters["cpu_ratio_log_null"] = discarded.medianCpuMs() / bare.medianCpuMs();
    state.counters["cpu_ratio_log_file"] = logged.medianCpuMs() / bare.medianCpuMs();
    state.counters["bare_peak_MB"] = static_cast<double>(bare.peakKilobytes) * 1024 / 1e6;
    state.counters["peak_MB"] =
        static_cast<double>(std::max(discarded.peakKilobytes, logged.peakKilobytes)) * 1024 / 1e6;
    state.counters["peak_to_doc"] = state.counters["peak_MB"] / documentMB;
}
BENCHMARK(BM_PolicyParseProcess_vs_BareSaxProcess)->Unit(benchmark::kMillisecond)->Iterations(11);

}  // namespace
