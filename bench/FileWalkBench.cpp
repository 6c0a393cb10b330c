// The file search's full walk (find_files of a name that occurs a few times), against the
// system's `find DIR -name X` walking the same tree in the same run. Each iteration runs both,
// one after the other, on a warm cache; the counters give both times and their ratio.
//
// Trees: one generated under /tmp by the benchmark itself (200,000 files in 2,000 directories,
// removed at the end) and /usr as this machine has it.
#include <tvpolicy/checks/File.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

namespace stdfs = std::filesystem;
using Clock = std::chrono::steady_clock;

// 50 directories of 39 subdirectories each (2,000 directories), 100 files in every one.
class GeneratedTree {
public:
    GeneratedTree()
    {
        char pattern[] = "/tmp/tvpolicy-bench-XXXXXX";
        if (::mkdtemp(pattern) == nullptr) {
            throw std::runtime_error("mkdtemp failed");
        }
        root_ = pattern;
        for (int top = 0; top < 50; ++top) {
            stdfs::path topDir = root_ / ("d" + std::to_string(top));
            fill(topDir, top);
            for (int sub = 0; sub < 39; ++sub) {
                fill(topDir / ("s" + std::to_string(sub)), sub);
            }
        }
    }
    ~GeneratedTree()
    {
        std::error_code ignored;
        stdfs::remove_all(root_, ignored);
    }
    const stdfs::path& root() const { return root_; }

private:
    static void fill(const stdfs::path& dir, int seed)
    {
        stdfs::create_directories(dir);
        for (int i = 0; i < 100; ++i) {
            std::string name = (i == 0 && seed % 7 == 0) ? "needle.dat" : "file" + std::to_string(i) + ".dat";
            std::ofstream(dir / name);
        }
    }

    stdfs::path root_;
};

double runFind(const std::string& dir, const std::string& name)
{
    std::vector<std::string> args = {"find", dir, "-name", name};
    std::vector<char*> argv;
    argv.reserve(args.size() + 1);
    for (std::string& arg : args) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    Clock::time_point start = Clock::now();
    pid_t pid = 0;
    int failed = posix_spawnp(&pid, "find", &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) {
        throw std::runtime_error("cannot start find");
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double runFindFiles(const std::string& dir, const std::string& name, std::size_t& matches)
{
    Clock::time_point start = Clock::now();
    std::list<stdfs::path> found;
    find_files(dir, name, found);
    double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    matches = found.size();
    return seconds;
}

void compareWithFind(benchmark::State& state, const std::string& dir, const std::string& name)
{
    std::size_t matches = 0;
    runFindFiles(dir, name, matches);  // warm the cache for both
    runFind(dir, name);
    double ours = 0;
    double peer = 0;
    for (auto _ : state) {
        double walk = runFindFiles(dir, name, matches);
        peer += runFind(dir, name);
        ours += walk;
        state.SetIterationTime(walk);
    }
    double n = static_cast<double>(state.iterations());
    state.counters["find_files_ms"] = ours / n * 1e3;
    state.counters["find_ms"] = peer / n * 1e3;
    state.counters["ratio_to_find"] = ours / peer;
    state.counters["matches"] = static_cast<double>(matches);
}

void BM_find_files_generated_vs_find(benchmark::State& state)
{
    GeneratedTree tree;
    compareWithFind(state, tree.root().string(), "needle.dat");
}
BENCHMARK(BM_find_files_generated_vs_find)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_find_files_usr_vs_find(benchmark::State& state) { compareWithFind(state, "/usr", "libc.so.6"); }
BENCHMARK(BM_find_files_usr_vs_find)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace
