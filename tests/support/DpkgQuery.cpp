#include "support/DpkgQuery.h"

#include <sstream>

#include "support/RunCli.h"

namespace testing_support {

std::map<std::string, std::string> installedByDpkgQuery()
{
    CliResult query = runProgram({"dpkg-query", "-W", "-f=${binary:Package}\\t${Version}\\t${db:Status-Status}\\n"});
    std::map<std::string, std::string> packages;
    if (query.exitCode != 0) {
        return packages;
    }
    std::istringstream lines(query.out);
    for (std::string line; std::getline(lines, line);) {
        std::size_t tab = line.find('\t');
        std::size_t second = line.find('\t', tab + 1);
        if (second == std::string::npos) {
            continue;
        }
        std::string state = line.substr(second + 1);
        if (state != "config-files" && state != "not-installed") {
            packages[line.substr(0, tab)] = line.substr(tab + 1, second - tab - 1);
        }
    }
    return packages;
}

}  // namespace testing_support
