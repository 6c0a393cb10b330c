#include "agent/AgentSettings.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include <tvpolicy/base/OwnedFd.h>

#include "agent/TomlReader.h"

namespace tvpolicy::cli::agent {

std::string ScriptRule::refusal(const std::string& command) const
{
    if (any || std::find(allowed.begin(), allowed.end(), command) != allowed.end()) {
        return std::string();
    }
    return "the command '" + command + "' was not run: it is not in the agent's `scripts` setting";
}

std::optional<std::chrono::milliseconds> parseDuration(const std::string& text)
{
    std::size_t digits = 0;
    while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
        ++digits;
    }
    if (digits == 0 || digits > 9) {
        return std::nullopt;
    }
    long long number = std::stoll(text.substr(0, digits));
    const std::string unit = text.substr(digits);
    const std::map<std::string, long long> millisecondsPer = {{"", 1000},   {"s", 1000},    {"ms", 1},
                                                              {"m", 60000}, {"h", 3600000}, {"d", 86400000}};
    auto found = millisecondsPer.find(unit);
    if (found == millisecondsPer.end() || number == 0) {
        return std::nullopt;
    }
    return std::chrono::milliseconds(number * found->second);
}

namespace {

const char* const durationWanted = "`interval` must be a duration such as \"4h\" or a number of seconds";
const char* const scriptsWanted = "`scripts` must be a list of commands or \"any\"";

using Kind = TomlValue::Kind;

Result<std::string> readText(const TomlValue& node, const std::string& key)
{
    if (!node.is(Kind::String)) {
        return Failure{"`" + key + "` must be a string"};
    }
    return node.text;
}

Result<ScriptRule> readScripts(const TomlValue& node)
{
    if (node.is(Kind::String) && node.text == "any") {
        return ScriptRule{true, {}};
    }
    if (!node.is(Kind::Array)) {
        return Failure{scriptsWanted};
    }
    ScriptRule rule;
    for (const TomlValue& item : node.items) {
        if (!item.is(Kind::String)) {
            return Failure{scriptsWanted};
        }
        rule.allowed.push_back(item.text);
    }
    return rule;
}

Result<std::map<std::string, std::string>> readLogin(const TomlValue& node)
{
    if (!node.is(Kind::Table)) {
        return Failure{"`login` must be a table of field values"};
    }
    std::map<std::string, std::string> login;
    for (const auto& [name, value] : node.members) {
        Result<std::string> text = readText(value, "login." + name);
        if (!text) {
            return Failure{text.error()};
        }
        login[name] = std::move(text).value();
    }
    return login;
}

// Puts `value` in `target` when there is one; the failure as it is otherwise.
template <typename T>
Result<void> store(Result<T> value, T& target)
{
    if (!value) {
        return Failure{value.error()};
    }
    target = std::move(value).value();
    return {};
}

Result<void> readKey(const std::string& key, const TomlValue& node, AgentSettings& settings)
{
    const std::map<std::string, std::string*> texts = {{"server", &settings.server},
                                                       {"discover", &settings.discover},
                                                       {"domain", &settings.domain},
                                                       {"state_dir", &settings.stateDir},
                                                       {"cacert", &settings.cacert}};
    if (auto text = texts.find(key); text != texts.end()) {
        return store(readText(node, key), *text->second);
    }
    if (key == "interval") {
        std::string value;
        if (node.is(Kind::Integer)) {
            value = std::to_string(node.integer);
        } else if (node.is(Kind::String)) {
            value = node.text;
        } else {
            return Failure{durationWanted};
        }
        auto duration = parseDuration(value);
        if (!duration) {
            return Failure{durationWanted};
        }
        settings.interval = *duration;
        return {};
    }
    if (key == "allow_http") {
        if (!node.is(Kind::Boolean)) {
            return Failure{"`allow_http` must be true or false"};
        }
        settings.allowHttp = node.boolean;
        return {};
    }
    if (key == "scripts") {
        return store(readScripts(node), settings.scripts);
    }
    if (key == "login") {
        return store(readLogin(node), settings.login);
    }
    return Failure{"unknown key `" + key + "`"};
}

/// The whole of a file no larger than a configuration file can sensibly be (a pipe too).
Result<std::string> readSmallFile(const std::string& path)
{
    constexpr std::size_t limit = 1 << 20;
    const OwnedFd file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file) {
        return Failure{std::strerror(errno)};
    }
    std::string text;
    switch (readBounded(file.get(), limit, text)) {
    case ReadEnd::Complete: return text;
    case ReadEnd::OverLimit: return Failure{"larger than a configuration file can be (1 MiB)"};
    default: return Failure{std::strerror(errno)};
    }
}

}  // namespace

Result<AgentSettings> loadSettings(const std::string& path, bool mustExist)
{
    AgentSettings settings;
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        if (errno == ENOENT && !mustExist) {
            return settings;
        }
        return Failure{path + ": " + std::strerror(errno)};
    }
    Result<std::string> text = readSmallFile(path);
    if (!text) {
        return Failure{path + ": " + text.error()};
    }
    Result<TomlValue> table = TomlReader::read(*text);
    if (!table) {
        return Failure{path + ":" + std::to_string(table.code()) + ": " + table.error()};
    }
    if (table->find("login") != nullptr && (info.st_mode & (S_IRGRP | S_IROTH)) != 0) {
        return Failure{path +
                       " holds login values and others may read it: make it readable by its owner only (chmod 600)"};
    }
    for (const auto& [key, node] : table->members) {
        if (Result<void> read = readKey(key, node, settings); !read) {
            return Failure{path + ": " + read.error()};
        }
    }
    return settings;
}

}  // namespace tvpolicy::cli::agent
