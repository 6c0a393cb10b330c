#include "agent/AgentSettings.h"

#include <sys/stat.h>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include <toml++/toml.h>

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

Result<std::string> readText(const toml::node& node, const std::string& key)
{
    if (!node.is_string()) {
        return Failure{"`" + key + "` must be a string"};
    }
    return *node.value<std::string>();
}

Result<ScriptRule> readScripts(const toml::node& node)
{
    if (node.is_string() && *node.value<std::string>() == "any") {
        return ScriptRule{true, {}};
    }
    const toml::array* list = node.as_array();
    if (list == nullptr) {
        return Failure{scriptsWanted};
    }
    ScriptRule rule;
    for (const toml::node& item : *list) {
        if (!item.is_string()) {
            return Failure{scriptsWanted};
        }
        rule.allowed.push_back(*item.value<std::string>());
    }
    return rule;
}

Result<std::map<std::string, std::string>> readLogin(const toml::node& node)
{
    const toml::table* table = node.as_table();
    if (table == nullptr) {
        return Failure{"`login` must be a table of field values"};
    }
    std::map<std::string, std::string> login;
    for (const auto& [name, value] : *table) {
        Result<std::string> text = readText(value, "login." + std::string(name.str()));
        if (!text) {
            return Failure{text.error()};
        }
        login[std::string(name.str())] = std::move(text).value();
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

Result<void> readKey(const std::string& key, const toml::node& node, AgentSettings& settings)
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
        if (node.is_integer()) {
            value = std::to_string(*node.value<long long>());
        } else if (node.is_string()) {
            value = *node.value<std::string>();
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
        if (!node.is_boolean()) {
            return Failure{"`allow_http` must be true or false"};
        }
        settings.allowHttp = *node.value<bool>();
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
    toml::table table;
    try {
        table = toml::parse_file(path);
    } catch (const toml::parse_error& failure) {
        return Failure{path + ":" + std::to_string(failure.source().begin.line) + ": " +
                       std::string(failure.description())};
    }
    if (table.contains("login") && (info.st_mode & (S_IRGRP | S_IROTH)) != 0) {
        return Failure{path +
                       " holds login values and others may read it: make it readable by its owner only (chmod 600)"};
    }
    for (const auto& [key, node] : table) {
        if (Result<void> read = readKey(std::string(key.str()), node, settings); !read) {
            return Failure{path + ": " + read.error()};
        }
    }
    return settings;
}

}  // namespace tvpolicy::cli::agent
