// Parsing and running a large policy: 10,000 sections of nested logic trees, about 5 MB.
// Peer: the XML library's own SAX2 reader parsing the same bytes into an empty handler, set up
// like the policy's reader. The policy parse is measured with the library's log discarded and
// with it written to a file; the run is reported per section; peak memory of a parse and run
// is measured in a fresh process, against the size of the document.
#include <tvpolicy/policy/Policy.h>

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <streambuf>
#include <string>
#include <vector>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "LargePolicy.h"
#include "xml/XmlPlatform.h"

namespace {

constexpr int sectionCount = tvpolicy::bench::largePolicySections;

const std::string& policyText() { return tvpolicy::bench::largePolicyText(); }

// A log destination that keeps nothing.
class Discard : public std::streambuf {
protected:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

// Points std::cout and std::clog (the library's log) somewhere else while alive.
class LogTo {
public:
    explicit LogTo(std::streambuf* target) : out_(std::cout.rdbuf(target)), log_(std::clog.rdbuf(target)) {}
    ~LogTo()
    {
        std::cout.rdbuf(out_);
        std::clog.rdbuf(log_);
    }

private:
    std::streambuf* out_;
    std::streambuf* log_;
};

double bareParseSeconds()
{
    tvpolicy::xml::ensurePlatform();
    std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreNameSpaces, false);
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreNameSpacePrefixes, false);
    tvpolicy::xml::harden(*reader);
    xercesc::DefaultHandler handler;
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    const std::string& xml = policyText();
    auto start = std::chrono::steady_clock::now();
    xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "policy", false);
    reader->parse(source);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double policyParseSeconds(std::streambuf* log)
{
    LogTo redirect(log);
    auto start = std::chrono::steady_clock::now();
    std::unique_ptr<Policy> policy(Policy::parseFromString(policyText(), true));
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (policy->getFatalParseError() || policy->getSectionCount() != sectionCount) {
        std::abort();
    }
    return seconds;
}

// Each iteration parses the same bytes three ways; the counters are the ratios to the peer.
void BM_PolicyParse_vs_BareSax(benchmark::State& state)
{
    Discard discard;
    std::string logPath = "/tmp/tvpolicy-bench-" + std::to_string(::getpid()) + ".log";
    std::ofstream file(logPath, std::ios::trunc);
    double bare = 0, discarded = 0, logged = 0;
    for (auto _ : state) {
        double b = bareParseSeconds();
        double d = policyParseSeconds(&discard);
        double f = policyParseSeconds(file.rdbuf());
        file.flush();
        bare += b;
        discarded += d;
        logged += f;
        state.SetIterationTime(b + d + f);
    }
    std::remove(logPath.c_str());
    double n = static_cast<double>(state.iterations());
    state.counters["doc_MB"] = static_cast<double>(policyText().size()) / 1e6;
    state.counters["bare_sax_ms"] = bare / n * 1e3;
    state.counters["parse_log_discarded_ms"] = discarded / n * 1e3;
    state.counters["parse_log_file_ms"] = logged / n * 1e3;
    state.counters["ratio_discarded"] = discarded / bare;
    state.counters["ratio_log_file"] = logged / bare;
}
BENCHMARK(BM_PolicyParse_vs_BareSax)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_PolicyRun(benchmark::State& state)
{
    Discard discard;
    LogTo redirect(&discard);
    double seconds = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::unique_ptr<Policy> policy(Policy::parseFromString(policyText(), true));
        state.ResumeTiming();
        auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(policy->run());
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.PauseTiming();
        policy.reset();
        state.ResumeTiming();
    }
    state.counters["per_section_us"] = seconds / static_cast<double>(state.iterations()) / sectionCount * 1e6;
}
BENCHMARK(BM_PolicyRun)->Unit(benchmark::kMillisecond)->Iterations(5);

// The high-water mark of this process's own memory (VmHWM): unlike the rusage peak, it starts
// afresh when a program is started, whatever its parent held.
long highWaterKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) {
            return std::atol(line.c_str() + 6);
        }
    }
    return -1;
}

// Peak resident memory is measured in a fresh process: this program started again with
// TVPOLICY_BENCH_POLICY naming a policy file parses and runs it before any benchmark starts,
// writes its high-water mark to the file TVPOLICY_BENCH_PEAK names, and exits.
const bool childMode = [] {
    const char* path = std::getenv("TVPOLICY_BENCH_POLICY");
    if (path == nullptr) {
        return false;
    }
    std::ifstream in(path);
    std::string xml((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    in.close();
    Discard discard;
    LogTo redirect(&discard);
    std::unique_ptr<Policy> policy(Policy::parseFromString(std::move(xml), true));
    benchmark::DoNotOptimize(policy->run());
    std::ofstream(std::getenv("TVPOLICY_BENCH_PEAK")) << highWaterKilobytes() << '\n';
    std::_Exit(policy->getFatalParseError() ? 3 : 0);
}();

long childPeakKilobytes(const std::string& path)
{
    std::string peakFile = path + ".peak";
    std::string variable = "TVPOLICY_BENCH_POLICY=" + path;
    std::string peakVariable = "TVPOLICY_BENCH_PEAK=" + peakFile;
    std::vector<char*> environment = {variable.data(), peakVariable.data(), nullptr};
    char self[] = "/proc/self/exe";
    char* argv[] = {self, nullptr};
    pid_t child = 0;
    if (posix_spawn(&child, self, nullptr, nullptr, argv, environment.data()) != 0) {
        return -1;
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    long peak = -1;
    std::ifstream(peakFile) >> peak;
    std::remove(peakFile.c_str());
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? peak : -1;
}

void BM_PolicyPeakMemory(benchmark::State& state)
{
    std::string dir = "/tmp/tvpolicy-bench-" + std::to_string(::getpid());
    std::string large = dir + "-large.xml", small = dir + "-small.xml";
    std::ofstream(large) << policyText();
    std::ofstream(small) << "<policy name=\"small\">\n" << tvpolicy::bench::largePolicySection(0) << "</policy>\n";
    long baseline = 0, peak = 0;
    for (auto _ : state) {
        baseline = childPeakKilobytes(small);
        peak = childPeakKilobytes(large);
    }
    std::remove(large.c_str());
    std::remove(small.c_str());
    double documentMB = static_cast<double>(policyText().size()) / 1e6;
    double peakMB = static_cast<double>(peak) * 1024 / 1e6;
    double grownMB = static_cast<double>(peak - baseline) * 1024 / 1e6;
    state.counters["doc_MB"] = documentMB;
    state.counters["peak_MB"] = peakMB;
    state.counters["small_policy_peak_MB"] = static_cast<double>(baseline) * 1024 / 1e6;
    state.counters["growth_to_doc"] = grownMB / documentMB;
}
BENCHMARK(BM_PolicyPeakMemory)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
