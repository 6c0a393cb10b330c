// The agent's server communication against peers on loopback, each beside the command-line
// tool that does the same job, measured in the same run:
//   post2 round trips to an HTTP server  vs  `curl -X POST` for the same request;
//   an SRV lookup at a dnsmasq           vs  `dig` asking the same server the same question;
//   `tvpolicy --version` start-up         vs  `/bin/true`.
// The command-line peers pay for starting a process on every round; so does the start-up pair,
// which is what shows the cost of loading the library and its dependencies.
#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/host/NameServer.h>

#include <benchmark/benchmark.h>
#include <httplib.h>

#include <chrono>
#include <csignal>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include "SpawnQuietly.h"

namespace {

using com::torvane::BasicHttpRequest;
using com::torvane::SRVRecord;

// An HTTP server on loopback that answers every POST to /report with a cookie and a short body.
class ReportServer {
public:
    ReportServer()
    {
        server_.Post("/report", [](const httplib::Request&, httplib::Response& res) {
            res.set_header("Set-Cookie", "session=abc");
            res.set_content("<status>SUCCESS</status>", "application/xml");
        });
        port_ = server_.bind_to_any_port("127.0.0.1");
        thread_ = std::thread([this] { server_.listen_after_bind(); });
        while (!server_.is_running()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    ~ReportServer()
    {
        server_.stop();
        thread_.join();
    }

    std::string url() const { return "http://127.0.0.1:" + std::to_string(port_) + "/report"; }

private:
    httplib::Server server_;
    int port_ = 0;
    std::thread thread_;
};

ReportServer& reportServer()
{
    static ReportServer server;
    return server;
}

const std::string reportFields = "mac=00:11:22:33:44:55&result=pass&os=Debian";

void BM_post2(benchmark::State& state)
{
    std::string url = reportServer().url();
    for (auto _ : state) {
        auto reply = BasicHttpRequest::post2(url, reportFields, "sid=1");
        if (reply["responseCode"] != "200") {
            state.SkipWithError(("no answer: " + reply["error"]).c_str());
            break;
        }
    }
    state.counters["round_trips"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_post2)->UseRealTime()->Unit(benchmark::kMicrosecond);

void BM_post2_peer_curl(benchmark::State& state)
{
    std::string url = reportServer().url();
    for (auto _ : state) {
        if (!bench::runQuietly({"curl", "-s", "-o", "/dev/null", "-A", "KVA Agent", "-b", "sid=1", "--data",
                                reportFields, "--fail", url})) {
            state.SkipWithError("curl failed");
            break;
        }
    }
    state.counters["round_trips"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_post2_peer_curl)->UseRealTime()->Unit(benchmark::kMicrosecond);

// dnsmasq on a free loopback port with four SRV records, for the whole run.
class Dnsmasq {
public:
    Dnsmasq()
    {
        int fd = ::socket(AF_INET, SOCK_DGRAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        bool found = ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
                     ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) == 0;
        ::close(fd);
        if (!found) {
            throw std::runtime_error("cannot find a free port for dnsmasq");
        }
        port_ = ntohs(address.sin_port);
        pid_ =
            bench::spawnQuietly({"dnsmasq", "--keep-in-foreground", "--no-resolv", "--no-hosts", "--bind-interfaces",
                                 "--listen-address=127.0.0.1", "--port=" + std::to_string(port_),
                                 "--pid-file=", "--user=root", "--srv-host=_agent._tcp.corp.test,a.corp.test,443,10,60",
                                 "--srv-host=_agent._tcp.corp.test,b.corp.test,443,10,20",
                                 "--srv-host=_agent._tcp.corp.test,c.corp.test,8443,5,0",
                                 "--srv-host=_agent._tcp.corp.test,d.corp.test,8443,20,0"});
        if (pid_ < 0) {
            throw std::runtime_error("cannot start dnsmasq");
        }
        for (int attempt = 0; attempt < 500 && lookup() != 4; ++attempt) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    ~Dnsmasq()
    {
        ::kill(pid_, SIGTERM);
        bench::waitFor(pid_);
    }

    // The number of records a lookup finds.
    std::size_t lookup() const
    {
        auto records = SRVRecord::lookup("agent", "tcp", "corp.test", tvpolicy::NameServer{"127.0.0.1", port_});
        std::size_t count = records.size();
        SRVRecord::freeRecords(records);
        return count;
    }
    std::uint16_t port() const { return port_; }

private:
    std::uint16_t port_ = 0;
    pid_t pid_ = -1;
};

Dnsmasq& dnsmasq()
{
    static Dnsmasq server;
    return server;
}

void BM_SRVRecord_lookup(benchmark::State& state)
{
    Dnsmasq& dns = dnsmasq();
    for (auto _ : state) {
        if (dns.lookup() != 4) {
            state.SkipWithError("the records did not all come");
            break;
        }
    }
}
BENCHMARK(BM_SRVRecord_lookup)->UseRealTime()->Unit(benchmark::kMicrosecond);

void BM_SRVRecord_lookup_peer_dig(benchmark::State& state)
{
    std::string port = std::to_string(dnsmasq().port());
    for (auto _ : state) {
        if (!bench::runQuietly(
                {"dig", "@127.0.0.1", "-p", port, "+short", "+tries=1", "SRV", "_agent._tcp.corp.test"})) {
            state.SkipWithError("dig failed");
            break;
        }
    }
}
BENCHMARK(BM_SRVRecord_lookup_peer_dig)->UseRealTime()->Unit(benchmark::kMicrosecond);

// Wall time suffers from whatever else the machine runs; the CPU time the started processes
// used (user and system, from the kernel's account of reaped children) much less so.
double childCpuMilliseconds()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

void startupOf(benchmark::State& state, const std::vector<std::string>& argv)
{
    double before = childCpuMilliseconds();
    for (auto _ : state) {
        if (!bench::runQuietly(argv)) {
            state.SkipWithError((argv[0] + " failed").c_str());
            break;
        }
    }
    state.counters["child_cpu_ms"] =
        benchmark::Counter((childCpuMilliseconds() - before) / static_cast<double>(state.iterations()));
}

void BM_startup_tvpolicy_version(benchmark::State& state) { startupOf(state, {TVPOLICY_CLI, "--version"}); }
BENCHMARK(BM_startup_tvpolicy_version)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_startup_peer_true(benchmark::State& state) { startupOf(state, {"/bin/true"}); }
BENCHMARK(BM_startup_peer_true)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
