// tvpolicy run --report on the 10,000-section policy, against the same run without the report
// (peer: plain `tvpolicy run --json`, in the same process of measurement). Reports the time of
// each, their ratio and the size of the HTML file against the size of the JSON results.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "LargePolicy.h"

extern char** environ;

namespace {

// Runs the CLI with `arguments`, standard output into `output`; seconds taken, or -1.
double runCli(const std::vector<std::string>& arguments, const std::string& output)
{
    std::vector<std::string> words{TVPOLICY_CLI};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    int status = 0;
    bool spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    if (!spawned || waitpid(pid, &status, 0) != pid || !WIFEXITED(status) || WEXITSTATUS(status) > 1) {
        return -1;
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void BM_RunReport_vs_PlainRun(benchmark::State& state)
{
    std::string base = "/tmp/tvpolicy-report-bench-" + std::to_string(::getpid());
    std::string policy = base + ".xml", json = base + ".json", html = base + ".html";
    std::ofstream(policy) << tvpolicy::bench::largePolicyText();
    double plain = 0, report = 0;
    for (auto _ : state) {
        double plainOnce = runCli({"run", policy, "-q", "--json"}, json);
        double reportOnce = runCli({"run", policy, "-q", "--json", "--report", html}, "/dev/null");
        if (plainOnce < 0 || reportOnce < 0) {
            state.SkipWithError("tvpolicy run failed");
            break;
        }
        plain += plainOnce;
        report += reportOnce;
        state.SetIterationTime(reportOnce);
    }
    double runs = static_cast<double>(state.iterations());
    state.counters["report_ms"] = report / runs * 1e3;
    state.counters["plain_run_ms"] = plain / runs * 1e3;
    state.counters["ratio"] = plain > 0 ? report / plain : 0;
    if (std::filesystem::exists(html)) {
        state.counters["html_MB"] = static_cast<double>(std::filesystem::file_size(html)) / 1e6;
        state.counters["json_MB"] = static_cast<double>(std::filesystem::file_size(json)) / 1e6;
    }
    for (const std::string& file : {policy, json, html}) {
        std::remove(file.c_str());
    }
}
BENCHMARK(BM_RunReport_vs_PlainRun)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
