// An embedder's whole program: reads a policy file into a string and parses it with
// Policy::parseFromString. The library's log goes to standard error (the default), or with
// `--log FILE` to that file through std::clog. Exit 0 when the policy was read with the number
// of sections given.
#include <tvpolicy/policy/Policy.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "ReadWholeFile.h"

int main(int argc, char** argv)
{
    if (argc != 3 && !(argc == 5 && std::strcmp(argv[3], "--log") == 0)) {
        std::cerr << "usage: parse_policy_file POLICY SECTIONS [--log FILE]\n";
        return 2;
    }
    std::string xml = bench::readWholeFile(argv[1]);
    std::ofstream log;
    if (argc == 5) {
        log.open(argv[4], std::ios::trunc);
        std::clog.rdbuf(log.rdbuf());
    }
    std::unique_ptr<Policy> policy(Policy::parseFromString(std::move(xml), true));
    bool read =
        !policy->getFatalParseError() && policy->getSectionCount() == static_cast<std::uint32_t>(std::atoi(argv[2]));
    std::clog.rdbuf(std::cerr.rdbuf());
    return read ? 0 : 1;
}
