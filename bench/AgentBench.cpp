// What the agent costs over time, against the reference server on loopback:
//   soak: cycles back to back (the shortest interval), the agent's resident memory after the
//         first 100 cycles and after the last, its descriptors then and at the end, and its CPU
//         time per cycle beside `tvpolicy run` evaluating the same policy once (the peer);
//   idle: between two cycles, the agent's CPU time over a window without events and its
//         resident memory.
// TVPOLICY_SOAK_CYCLES (default 10000) and TVPOLICY_IDLE_SECONDS (default 60) shorten them.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "SpawnQuietly.h"

namespace {

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";
constexpr long firstCycles = 100;

long fromEnvironment(const char* name, long fallback)
{
    const char* text = std::getenv(name);
    long value = text != nullptr ? std::atol(text) : 0;
    return value > 0 ? value : fallback;
}

// A port nobody listens on now.
int freePort()
{
    int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    int port = 0;
    if (::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) == 0) {
        port = ntohs(address.sin_port);
    }
    ::close(fd);
    return port;
}

bool accepting(int port)
{
    int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<unsigned short>(port));
    bool connected = ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return connected;
}

// A child process, ended with SIGTERM and reaped when the object ends.
class Child {
public:
    explicit Child(pid_t pid) : pid_(pid) {}
    ~Child()
    {
        if (pid_ > 0) {
            ::kill(pid_, SIGTERM);
            bench::waitFor(pid_);
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    pid_t pid() const { return pid_; }

private:
    pid_t pid_;
};

// The reference server serving `policy`, without a request log, on a loopback port.
class Server {
public:
    explicit Server(const std::string& policy)
        : port_(freePort()),
          process_(bench::spawnQuietly(
              {"/usr/bin/python3", examples + "server/server.py", "--port", std::to_string(port_), "--policy", policy}))
    {
        for (int i = 0; i < 200 && !accepting(port_); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }
    std::string url() const { return "http://127.0.0.1:" + std::to_string(port_); }

private:
    int port_;
    Child process_;
};

// The agent against `server`, telling each cycle as a line read through a pipe.
class Agent {
public:
    Agent(const std::string& server, const std::string& interval, const std::filesystem::path& stateDir)
        : process_(bench::spawnReadingErrors({TVPOLICY_CLI, "agent", "--allow-http", "--server", server, "--interval",
                                              interval, "--state-dir", stateDir.string(), "--config", "/dev/null"},
                                             errorFd_))
    {
        lines_ = errorFd_ >= 0 ? ::fdopen(errorFd_, "r") : nullptr;
    }
    ~Agent()
    {
        if (lines_ != nullptr) {
            std::fclose(lines_);
        }
    }
    Agent(const Agent&) = delete;
    Agent& operator=(const Agent&) = delete;

    pid_t pid() const { return process_.pid(); }

    /// Waits for the next cycle line; false when the agent ended.
    bool nextCycle(std::string& line)
    {
        char* text = nullptr;
        std::size_t size = 0;
        for (;;) {
            ssize_t got = lines_ != nullptr ? ::getline(&text, &size, lines_) : -1;
            if (got < 0) {
                std::free(text);
                return false;
            }
            line.assign(text, static_cast<std::size_t>(got));
            if (line.find(" cycle (") != std::string::npos) {
                std::free(text);
                return true;
            }
        }
    }

private:
    int errorFd_ = -1;
    Child process_;
    std::FILE* lines_ = nullptr;
};

long residentKilobytes(pid_t pid)
{
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0) {
            return std::atol(line.c_str() + 6);
        }
    }
    return -1;
}

// User and system CPU time of `pid` so far, in milliseconds.
double cpuMilliseconds(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string text((std::istreambuf_iterator<char>(stat)), std::istreambuf_iterator<char>());
    std::istringstream fields(text.substr(text.rfind(')') + 2));
    std::string field;
    unsigned long long user = 0;
    unsigned long long system = 0;
    for (int index = 3; fields >> field; ++index) {
        if (index == 14) {
            user = std::stoull(field);
        } else if (index == 15) {
            system = std::stoull(field);
            break;
        }
    }
    return static_cast<double>(user + system) * 1000.0 / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

// CPU time of the threads `pid` runs now, in milliseconds, to the nanosecond the scheduler
// counts (a finished thread's time is no longer in it: for a window in which none ends).
double threadCpuMilliseconds(pid_t pid)
{
    double total = 0;
    std::error_code error;
    for (auto it = std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", error);
         !error && it != std::filesystem::directory_iterator(); it.increment(error)) {
        unsigned long long nanoseconds = 0;
        std::ifstream(it->path() / "schedstat") >> nanoseconds;
        total += static_cast<double>(nanoseconds) / 1e6;
    }
    return total;
}

// The descriptors the agent holds between transfers: the fewest of a few looks, since one may
// fall in the middle of a request.
long descriptors(pid_t pid)
{
    long fewest = -1;
    for (int look = 0; look < 20; ++look) {
        long count = 0;
        std::error_code error;
        for (auto it = std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/fd", error);
             !error && it != std::filesystem::directory_iterator(); it.increment(error)) {
            ++count;
        }
        fewest = fewest < 0 ? count : std::min(fewest, count);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return fewest;
}

// CPU time of one `tvpolicy run` of `policy`, start-up included, as the mean of `runs`.
double peerRunMilliseconds(const std::string& policy, int runs)
{
    double total = 0;
    for (int i = 0; i < runs; ++i) {
        pid_t pid = bench::spawnQuietly({TVPOLICY_CLI, "run", "-q", policy});
        int status = 0;
        rusage usage{};
        while (::wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
        }
        total += static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000.0 +
                 static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000.0;
    }
    return total / runs;
}

std::filesystem::path stateDirectory(const char* name)
{
    auto path = std::filesystem::temp_directory_path() / (std::string(name) + std::to_string(::getpid()));
    std::filesystem::remove_all(path);
    return path;
}

void BM_AgentSoak(benchmark::State& state)
{
    const long cycles = fromEnvironment("TVPOLICY_SOAK_CYCLES", 10000);
    const std::string policy = examples + "compliant.xml";
    const auto stateDir = stateDirectory("tvpolicy-soak-");
    for (auto _ : state) {
        Server server(policy);
        Agent agent(server.url(), "1ms", stateDir);
        std::string line;
        long seen = 0;
        long rssFirst = 0;
        long fdsFirst = 0;
        double cpuFirst = 0;
        auto clockFirst = std::chrono::steady_clock::now();
        long passed = 0;
        while (seen < cycles && agent.nextCycle(line)) {
            ++seen;
            passed += line.find(": passed in ") != std::string::npos;
            if (seen == firstCycles) {
                rssFirst = residentKilobytes(agent.pid());
                fdsFirst = descriptors(agent.pid());
                cpuFirst = cpuMilliseconds(agent.pid());
                clockFirst = std::chrono::steady_clock::now();
            }
        }
        if (seen < cycles) {
            state.SkipWithError("the agent ended early");
            break;
        }
        const long rssLast = residentKilobytes(agent.pid());
        const long fdsLast = descriptors(agent.pid());
        const double perCycle = (cpuMilliseconds(agent.pid()) - cpuFirst) / static_cast<double>(cycles - firstCycles);
        const double wall =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - clockFirst).count() /
            static_cast<double>(cycles - firstCycles);
        const double peer = peerRunMilliseconds(policy, 20);
        state.counters["cycles"] = static_cast<double>(cycles);
        state.counters["passed"] = static_cast<double>(passed);
        state.counters["rss_kB_at_100"] = static_cast<double>(rssFirst);
        state.counters["rss_kB_at_end"] = static_cast<double>(rssLast);
        state.counters["rss_growth_kB"] = static_cast<double>(rssLast - rssFirst);
        state.counters["fds_at_100"] = static_cast<double>(fdsFirst);
        state.counters["fds_at_end"] = static_cast<double>(fdsLast);
        state.counters["cpu_ms_per_cycle"] = perCycle;
        state.counters["wall_ms_per_cycle"] = wall;
        state.counters["peer_run_cpu_ms"] = peer;
        state.counters["cycle_per_peer_run"] = perCycle / peer;
    }
    std::filesystem::remove_all(stateDir);
}
BENCHMARK(BM_AgentSoak)->Iterations(1)->Unit(benchmark::kSecond);

void BM_AgentIdle(benchmark::State& state)
{
    const long seconds = fromEnvironment("TVPOLICY_IDLE_SECONDS", 60);
    const auto stateDir = stateDirectory("tvpolicy-idle-");
    for (auto _ : state) {
        Server server(examples + "compliant.xml");
        Agent agent(server.url(), "1h", stateDir);
        std::string line;
        if (!agent.nextCycle(line)) {
            state.SkipWithError("the agent ended before its first cycle");
            break;
        }
        std::this_thread::sleep_for(std::chrono::seconds(3));  // the monitors' fetch and the burst window
        const double before = threadCpuMilliseconds(agent.pid());
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
        state.counters["idle_seconds"] = static_cast<double>(seconds);
        state.counters["idle_cpu_ms"] = threadCpuMilliseconds(agent.pid()) - before;
        state.counters["rss_kB"] = static_cast<double>(residentKilobytes(agent.pid()));
    }
    std::filesystem::remove_all(stateDir);
}
BENCHMARK(BM_AgentIdle)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
