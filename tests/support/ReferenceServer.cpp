#include "support/ReferenceServer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/RunCli.h"

namespace testing_support {

ReferenceServer::ReferenceServer(const std::vector<std::string>& arguments, const std::vector<std::string>& prefix)
    : prefix_(prefix)
{
    std::filesystem::create_directories(dir_.path() / "results");
    std::vector<std::string> argv = prefix;
    for (const std::string& word :
         {std::string("/usr/bin/python3"), std::string(TVPOLICY_SOURCE_DIR) + "/examples/server/server.py",
          std::string("--port"), std::string("0"), std::string("--log"), (dir_.path() / "requests.jsonl").string(),
          std::string("--results-dir"), (dir_.path() / "results").string()}) {
        argv.push_back(word);
    }
    argv.insert(argv.end(), arguments.begin(), arguments.end());
    process_ = std::make_unique<ChildProcess>(argv, true);
    std::optional<std::string> line = process_->readLine(std::chrono::seconds(20));
    if (!line) {
        return;
    }
    std::string::size_type colon = line->rfind(':');
    std::string::size_type start = line->find("http");
    if (colon == std::string::npos || start == std::string::npos) {
        return;
    }
    port_ = std::stoi(line->substr(colon + 1));
    url_ = line->substr(start);
}

std::vector<nlohmann::json> ReferenceServer::requests() const
{
    std::vector<nlohmann::json> found;
    std::ifstream log(dir_.path() / "requests.jsonl");
    for (std::string line; std::getline(log, line);) {
        nlohmann::json entry = nlohmann::json::parse(line, nullptr, false);
        if (!entry.is_discarded()) {
            found.push_back(entry);
        }
    }
    return found;
}

std::vector<std::string> ReferenceServer::requestLines() const
{
    std::vector<std::string> lines;
    for (const nlohmann::json& entry : requests()) {
        lines.push_back(entry["method"].get<std::string>() + " " + entry["path"].get<std::string>());
    }
    return lines;
}

bool ReferenceServer::waitForRequests(const std::string& path, std::size_t count,
                                      std::chrono::milliseconds timeout) const
{
    auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        std::vector<nlohmann::json> all = requests();
        auto seen = static_cast<std::size_t>(
            std::count_if(all.begin(), all.end(), [&](const nlohmann::json& entry) { return entry["path"] == path; }));
        if (seen >= count) {
            return true;
        }
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

bool ReferenceServer::control(const nlohmann::json& change) const
{
    std::vector<std::string> argv = prefix_;
    for (std::string word : {"curl", "-sfk", "-o", "/dev/null", "--data-binary"}) {
        argv.push_back(word);
    }
    argv.push_back(change.dump());
    argv.push_back(url_ + "/control");
    return runProgram(argv).exitCode == 0;
}

std::vector<std::string> ReferenceServer::storedResults() const
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(dir_.path() / "results")) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> bodies;
    bodies.reserve(files.size());
    for (const auto& file : files) {
        bodies.push_back(readFile(file));
    }
    return bodies;
}

}  // namespace testing_support
