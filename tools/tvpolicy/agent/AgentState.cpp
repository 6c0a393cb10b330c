#include "agent/AgentState.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "report/ResultsFile.h"

namespace tvpolicy::cli::agent {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

namespace {

std::string readWhole(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

AgentState::AgentState(std::string directory) : directory_(std::move(directory)) {}

std::string AgentState::pendingDir() const { return (fs::path(directory_) / "pending").string(); }

Result<void> AgentState::prepare() const
{
    std::error_code failure;
    fs::create_directories(pendingDir(), failure);
    if (failure) {
        return Failure{"cannot create the state directory " + directory_ + ": " + failure.message()};
    }
    fs::permissions(directory_, fs::perms::owner_all, fs::perm_options::replace, failure);
    return {};
}

Result<void> AgentState::queue(const std::string& url, const std::string& body)
{
    // Milliseconds since the epoch, then a sequence number: names sort in the order written.
    auto now =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch())
            .count();
    char name[48];
    std::snprintf(name, sizeof name, "%015lld-%06u.json", static_cast<long long>(now), sequence_++ % 1000000);
    Json entry = {{"url", url}, {"body", body}};
    Result<void> written = writeFileAtomically((fs::path(pendingDir()) / name).string(), entry.dump());
    if (!written) {
        return written;
    }
    std::vector<PendingResults> waiting = pending();
    for (std::size_t i = 0; i + maxPending < waiting.size(); ++i) {
        forget(waiting[i].name);
    }
    return {};
}

std::vector<PendingResults> AgentState::pending() const
{
    std::vector<PendingResults> waiting;
    std::error_code failure;
    for (const fs::directory_entry& file : fs::directory_iterator(pendingDir(), failure)) {
        std::string name = file.path().filename().string();
        if (file.path().extension() != ".json" || name.front() == '.') {
            continue;  // the temporary files of a write in progress
        }
        Json entry = Json::parse(readWhole(file.path()), nullptr, false);
        if (entry.is_object() && entry["url"].is_string() && entry["body"].is_string()) {
            waiting.push_back({name, entry["url"].get<std::string>(), entry["body"].get<std::string>()});
        }
    }
    std::sort(waiting.begin(), waiting.end(),
              [](const PendingResults& a, const PendingResults& b) { return a.name < b.name; });
    return waiting;
}

void AgentState::forget(const std::string& name) const
{
    std::error_code ignored;
    fs::remove(fs::path(pendingDir()) / name, ignored);
}

Result<void> AgentState::saveVerdict(const Json& verdict) const
{
    return writeFileAtomically((fs::path(directory_) / "last-verdict.json").string(), verdict.dump(2) + '\n');
}

std::optional<Json> AgentState::lastVerdict() const
{
    std::string text = readWhole(fs::path(directory_) / "last-verdict.json");
    Json verdict = Json::parse(text, nullptr, false);
    if (verdict.is_discarded() || !verdict.is_object()) {
        return std::nullopt;
    }
    return verdict;
}

}  // namespace tvpolicy::cli::agent
