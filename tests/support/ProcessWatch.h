#pragma once

// What became of the processes a test's command started: header-only, for the suites that do
// not link the support library too.

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace testing_support {

/// Still running: neither gone nor a zombie that nobody reaps (PID 1 here may not reap).
inline bool processRunning(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    if (!std::getline(stat, line)) {
        return false;
    }
    std::size_t close = line.rfind(')');
    return close != std::string::npos && close + 2 < line.size() && line[close + 2] != 'Z';
}

/// The process ids that a command writes to `path` as one line (`echo $$ $! > FILE`) once it
/// has started what it runs; none when no whole line came within `timeout`.
inline std::vector<pid_t> waitForPidLine(const std::filesystem::path& path, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (std::chrono::steady_clock::now() < deadline) {
        std::ifstream in(path);
        std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (!text.empty() && text.back() == '\n') {
            std::istringstream words(text);
            std::vector<pid_t> pids;
            for (pid_t pid = 0; words >> pid;) {
                pids.push_back(pid);
            }
            return pids;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return {};
}

}  // namespace testing_support
