#include "host/probe/darwin/DarwinApplications.h"

#include <cstdio>
#include <memory>

namespace tvpolicy::darwin {

namespace {

struct PipeCloser {
    void operator()(FILE* pipe) const { ::pclose(pipe); }
};

}  // namespace

std::string applicationsPropertyList(std::size_t limit)
{
    std::unique_ptr<FILE, PipeCloser> pipe(::popen("system_profiler -xml SPApplicationsDataType", "r"));
    std::string output;
    if (!pipe) {
        return output;
    }
    char chunk[1024];
    std::size_t got;
    while ((got = std::fread(chunk, 1, sizeof chunk, pipe.get())) > 0) {
        if (got > limit - output.size()) {
            // Closing the pipe ends the profiler's writing; nothing half-read is handed on.
            return std::string();
        }
        output.append(chunk, got);
    }
    return output;
}

}  // namespace tvpolicy::darwin
