#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace testing_support {

struct CliResult {
    int exitCode = -1;  // the program's exit status, or 128 + signal number
    std::string out;
    std::string err;
};

/// Runs the tvpolicy program with `args`, feeding `input` on its standard input, and collects
/// both output streams separately.
CliResult runCli(const std::vector<std::string>& args, const std::string& input = "");

/// Runs any program the same way (argv[0] is looked up in PATH).
CliResult runProgram(const std::vector<std::string>& argv, const std::string& input = "");

/// `argv` run through the shell with its standard error appended to `log` (for a ChildProcess,
/// whose own streams go to /dev/null).
std::vector<std::string> loggingTo(const std::filesystem::path& log, std::vector<std::string> argv);

}  // namespace testing_support
