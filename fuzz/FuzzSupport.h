#pragma once

// What the fuzz targets share: quiet streams, a described host, and the test of whether a task
// tree may be performed without touching this machine.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

#include <tvpolicy/host/FakeHost.h>
#include <tvpolicy/policy/Task.h>

namespace fuzz {

/// The library logs every element it reads; the fuzzer needs none of it. libFuzzer and the
/// sanitizers write to descriptor 2 directly and are not affected.
inline void silenceLogs()
{
    std::cout.rdbuf(nullptr);
    std::clog.rdbuf(nullptr);
    std::cerr.rdbuf(nullptr);
    if (std::freopen("/dev/null", "w", stdout) == nullptr) {
        std::abort();
    }
}

/// Nothing a document names may reach the network or the disk: included sections are fetched
/// through a proxy that refuses at once (so no name is ever resolved), and the debug file
/// that `<debug>true</debug>` opens under $temp is never created.
inline void isolateFromMachine()
{
    setenv("http_proxy", "http://127.0.0.1:9", 1);
    setenv("https_proxy", "http://127.0.0.1:9", 1);
    setenv("HTTP_PROXY", "http://127.0.0.1:9", 1);
    setenv("HTTPS_PROXY", "http://127.0.0.1:9", 1);
    unsetenv("no_proxy");
    unsetenv("NO_PROXY");
    unsetenv("temp");
}

/// A described host whose file system is an empty folder: every system path the checks ask
/// for lands inside it, every command is recorded, not run.
class EmptyHost {
public:
    EmptyHost()
    {
        char pattern[] = "/tmp/tvpolicy-fuzz-XXXXXX";
        if (mkdtemp(pattern) == nullptr) {
            std::abort();
        }
        root_ = pattern;
        host_.pathMap["/"] = root_ + "/";
    }
    ~EmptyHost() { rmdir(root_.c_str()); }
    EmptyHost(const EmptyHost&) = delete;
    EmptyHost& operator=(const EmptyHost&) = delete;

    tvpolicy::FakeHost& host()
    {
        host_.commandsRun.clear();
        host_.openedURLs.clear();
        return host_;
    }

private:
    std::string root_;
    tvpolicy::FakeHost host_;
};

/// What a target that performs what it parses sets up once: no logs, no way out.
inline void initialiseIsolated()
{
    silenceLogs();
    isolateFromMachine();
}

/// The one described host of the process, its records cleared.
inline tvpolicy::FakeHost& emptyHost()
{
    static EmptyHost empty;
    return empty.host();
}

/// Whether every task of these trees reaches the machine only through the host probe. Scripts
/// (`VersionFromScript`) and file searches (`File`, `AvastVersion`) do not yet, so trees
/// holding one are parsed but not performed.
inline bool performableOnDescribedHost(const std::list<Task*>& roots)
{
    std::vector<Task*> pending(roots.begin(), roots.end());
    while (!pending.empty()) {
        Task* task = pending.back();
        pending.pop_back();
        std::string type = task->getType();
        if (type == "VersionFromScriptTask" || type == "FileTask" || type == "AvastVersionTask") {
            return false;
        }
        std::list<Task*>* terms = task->getTerms();
        if (terms != nullptr) {
            pending.insert(pending.end(), terms->begin(), terms->end());
            if (type == "notTask") {
                delete terms;  // notTask hands out a list of its own
            }
        }
    }
    return true;
}

}  // namespace fuzz
