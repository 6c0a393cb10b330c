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

bool readText(const toml::node& node, const std::string& key, std::string& target, std::string& error)
{
    if (!node.is_string()) {
        error = "`" + key + "` must be a string";
        return false;
    }
    target = *node.value<std::string>();
    return true;
}

bool readScripts(const toml::node& node, ScriptRule& rule, std::string& error)
{
    if (node.is_string() && *node.value<std::string>() == "any") {
        rule = ScriptRule{true, {}};
        return true;
    }
    const toml::array* list = node.as_array();
    if (list == nullptr) {
        error = "`scripts` must be a list of commands or \"any\"";
        return false;
    }
    rule = ScriptRule{};
    for (const toml::node& item : *list) {
        if (!item.is_string()) {
            error = "`scripts` must be a list of commands or \"any\"";
            return false;
        }
        rule.allowed.push_back(*item.value<std::string>());
    }
    return true;
}

bool readLogin(const toml::node& node, std::map<std::string, std::string>& login, std::string& error)
{
    const toml::table* table = node.as_table();
    if (table == nullptr) {
        error = "`login` must be a table of field values";
        return false;
    }
    login.clear();
    for (const auto& [name, value] : *table) {
        if (!readText(value, "login." + std::string(name.str()), login[std::string(name.str())], error)) {
            return false;
        }
    }
    return true;
}

bool readKey(const std::string& key, const toml::node& node, AgentSettings& settings, std::string& error)
{
    const std::map<std::string, std::string*> texts = {{"server", &settings.server},
                                                       {"discover", &settings.discover},
                                                       {"domain", &settings.domain},
                                                       {"state_dir", &settings.stateDir},
                                                       {"cacert", &settings.cacert}};
    if (auto text = texts.find(key); text != texts.end()) {
        return readText(node, key, *text->second, error);
    }
    if (key == "interval") {
        std::string value;
        if (node.is_integer()) {
            value = std::to_string(*node.value<long long>());
        } else if (!readText(node, key, value, error)) {
            error = "`interval` must be a duration such as \"4h\" or a number of seconds";
            return false;
        }
        auto duration = parseDuration(value);
        if (!duration) {
            error = "`interval` must be a duration such as \"4h\" or a number of seconds";
            return false;
        }
        settings.interval = *duration;
        return true;
    }
    if (key == "allow_http") {
        if (!node.is_boolean()) {
            error = "`allow_http` must be true or false";
            return false;
        }
        settings.allowHttp = *node.value<bool>();
        return true;
    }
    if (key == "scripts") {
        return readScripts(node, settings.scripts, error);
    }
    if (key == "login") {
        return readLogin(node, settings.login, error);
    }
    error = "unknown key `" + key + "`";
    return false;
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
        std::string error;
        if (!readKey(std::string(key.str()), node, settings, error)) {
            return Failure{path + ": " + error};
        }
    }
    return settings;
}

}  // namespace tvpolicy::cli::agent
