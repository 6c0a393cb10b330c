// The agent's state files: an input is both a results file waiting in pending/ and the last
// verdict. Whatever is read back must survive being written again: results queued anew come
// back with the same address and body, a verdict saved anew reads back equal.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "FuzzSupport.h"
#include "agent/AgentState.h"

namespace {

namespace fs = std::filesystem;
using tvpolicy::cli::agent::AgentState;
using tvpolicy::cli::agent::PendingResults;

/// Two state directories: one the input is put in, one what was read from it is written to.
class ScratchState {
public:
    ScratchState()
    {
        for (const AgentState* each : {&read, &written}) {
            if (auto prepared = each->prepare(); !prepared) {
                std::fprintf(stderr, "%s\n", prepared.error().c_str());
                std::abort();
            }
        }
    }

    void put(const std::string& text) const
    {
        for (const fs::path& file : {fs::path(read.directory()) / "pending" / "000000000000001-000000.json",
                                     fs::path(read.directory()) / "last-verdict.json"}) {
            std::ofstream out(file, std::ios::binary | std::ios::trunc);
            out << text;
            if (!out.flush()) {
                std::abort();
            }
        }
    }

    void emptyWritten() const
    {
        for (const PendingResults& results : written.pending()) {
            written.forget(results.name);
        }
    }

private:
    const fuzz::ScratchFolder folder_{"state"};

public:
    AgentState read{folder_.path() + "/read"};
    AgentState written{folder_.path() + "/written"};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static ScratchState state;
    state.put(std::string(reinterpret_cast<const char*>(data), size));

    const std::vector<PendingResults> waiting = state.read.pending();
    if (waiting.size() > 1) {
        std::abort();  // one file, one entry at most
    }
    for (const PendingResults& results : waiting) {
        state.emptyWritten();
        if (auto queued = state.written.queue(results.url, results.body); !queued) {
            std::fprintf(stderr, "%s\n", queued.error().c_str());
            std::abort();
        }
        const std::vector<PendingResults> again = state.written.pending();
        if (again.size() != 1 || again.front().url != results.url || again.front().body != results.body) {
            std::fprintf(stderr, "queued results did not read back the same\n");
            std::abort();
        }
    }

    if (auto verdict = state.read.lastVerdict()) {
        if (!verdict->is_object()) {
            std::abort();
        }
        if (auto saved = state.written.saveVerdict(*verdict); !saved) {
            std::fprintf(stderr, "%s\n", saved.error().c_str());
            std::abort();
        }
        auto again = state.written.lastVerdict();
        // Compared as written: a number beyond a double's range reads as infinite and is
        // written as null, both times.
        if (!again || again->dump() != verdict->dump()) {
            std::fprintf(stderr, "a saved verdict did not read back equal\n");
            std::abort();
        }
    }
    return 0;
}
