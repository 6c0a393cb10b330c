#pragma once

// What the fuzz targets share: quiet streams and a described host that stands in for this
// machine: scripts (VersionFromScript) are recorded, not run, and file searches (File,
// AvastVersion) walk its empty folder.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <streambuf>
#include <string>
#include <system_error>

#include <unistd.h>

#include <tvpolicy/host/DescribedHostProbe.h>

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

/// For a target whose parser traces each step (the version comparer): the trace is still
/// formatted, so that its code is fuzzed too, but goes nowhere. Written to the terminal it was
/// most of the target's time and gigabytes of log in ten minutes.
inline void discardLogs()
{
    static struct Discard : std::streambuf {
        int overflow(int c) override { return traits_type::not_eof(c); }
        std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
    } discard;
    std::clog.rdbuf(&discard);
    std::cerr.rdbuf(&discard);
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
/// for lands inside it (a path that would not is a finding: the process aborts), every
/// command is recorded, not run.
class EmptyHost {
public:
    EmptyHost()
    {
        char pattern[] = "/tmp/tvpolicy-fuzz-XXXXXX";
        if (mkdtemp(pattern) == nullptr) {
            std::abort();
        }
        host_.root = std::string(pattern) + "/";
        // Relative paths too; no ".." climbs out of the folder (DescribedHostProbe keeps to it).
        host_.pathMap["/"] = host_.root;
        host_.pathMap[""] = host_.root;
    }
    ~EmptyHost() { rmdir(host_.root.c_str()); }
    EmptyHost(const EmptyHost&) = delete;
    EmptyHost& operator=(const EmptyHost&) = delete;

    tvpolicy::DescribedHostProbe& host() { return host_; }

private:
    struct Confined : tvpolicy::DescribedHostProbe {
        std::string root;
        std::string systemPath(const std::string& path) const override
        {
            std::string mapped = DescribedHostProbe::systemPath(path);
            std::string normal = std::filesystem::path(mapped).lexically_normal().string();
            if (normal.compare(0, root.size(), root) != 0 && normal + "/" != root) {
                std::fprintf(stderr, "system path %s left the described host: %s\n", path.c_str(), mapped.c_str());
                std::abort();
            }
            return mapped;
        }
    };
    Confined host_;
};

/// A folder of the process's own, removed with everything in it at exit, for targets whose
/// parser reads files. It lies in memory where it can (/dev/shm): the files written for every
/// input, some of them synced, would otherwise wait on the disk.
class ScratchFolder {
public:
    explicit ScratchFolder(const std::string& name)
    {
        std::string parent = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
        std::string pattern = parent + "/tvpolicy-fuzz-" + name + "-XXXXXX";
        if (mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        path_ = pattern;
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// What a target that performs what it parses sets up once: no logs, no way out.
inline void initialiseIsolated()
{
    silenceLogs();
    isolateFromMachine();
}

/// The one described host of the process.
inline tvpolicy::DescribedHostProbe& emptyHost()
{
    static EmptyHost empty;
    return empty.host();
}

}  // namespace fuzz
