// The agent's configuration file (TOML). Settings that load are written back as TOML and must
// load again to the same settings; a refusal names the file. The file is readable by its
// owner only, so login values are never refused for that.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <toml++/toml.h>

#include "FuzzSupport.h"
#include "agent/AgentSettings.h"

namespace {

using tvpolicy::cli::agent::AgentSettings;

/// The one file each input becomes, readable by its owner only.
class ScratchFile {
public:
    const std::string& write(const std::string& text) const
    {
        int fd = open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        if (fd < 0) {
            std::abort();
        }
        std::size_t done = 0;
        while (done < text.size()) {
            ssize_t written = ::write(fd, text.data() + done, text.size() - done);
            if (written <= 0) {
                std::abort();
            }
            done += static_cast<std::size_t>(written);
        }
        close(fd);
        return path_;
    }

private:
    const fuzz::ScratchFolder folder_{"settings"};
    const std::string path_ = folder_.path() + "/agent.toml";
};

/// The interval in the largest unit that holds it whole, as the file would write it.
std::string durationText(std::chrono::milliseconds interval)
{
    const std::pair<long long, const char*> units[] = {
        {86400000, "d"}, {3600000, "h"}, {60000, "m"}, {1000, "s"}, {1, "ms"}};
    for (const auto& [per, unit] : units) {
        if (interval.count() % per == 0) {
            return std::to_string(interval.count() / per) + unit;
        }
    }
    std::abort();
}

/// A TOML basic string.
std::string quoted(const std::string& text)
{
    std::string out = "\"";
    for (unsigned char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c < 0x20 || c == 0x7f) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", c);
            out += escape;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

std::string asToml(const AgentSettings& settings)
{
    toml::table table{{"server", settings.server},
                      {"discover", settings.discover},
                      {"domain", settings.domain},
                      {"state_dir", settings.stateDir},
                      {"cacert", settings.cacert},
                      {"allow_http", settings.allowHttp},
                      {"interval", durationText(settings.interval)}};
    if (settings.scripts.any) {
        table.insert("scripts", "any");
    } else {
        toml::array allowed;
        for (const std::string& command : settings.scripts.allowed) {
            allowed.push_back(command);
        }
        table.insert("scripts", std::move(allowed));
    }
    std::ostringstream text;
    // Basic one-line strings only: a multi-line string that starts with a line end would lose
    // it when read back (TOML drops the line end right after the opening quotes).
    text << toml::toml_formatter(table, toml::toml_formatter::default_flags &
                                            ~toml::format_flags::allow_multi_line_strings &
                                            ~toml::format_flags::allow_literal_strings);
    // The login table by hand: toml++'s formatter writes a key that is a lone apostrophe
    // without quotes, and the file no longer loads.
    if (!settings.login.empty()) {
        text << "\n[login]\n";
        for (const auto& [field, value] : settings.login) {
            text << quoted(field) << " = " << quoted(value) << "\n";
        }
    }
    return text.str();
}

bool same(const AgentSettings& a, const AgentSettings& b)
{
    return a.server == b.server && a.discover == b.discover && a.domain == b.domain && a.interval == b.interval &&
           a.stateDir == b.stateDir && a.cacert == b.cacert && a.allowHttp == b.allowHttp &&
           a.scripts.any == b.scripts.any && a.scripts.allowed == b.scripts.allowed && a.login == b.login;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ScratchFile file;
    const std::string& path = file.write(std::string(reinterpret_cast<const char*>(data), size));
    auto loaded = tvpolicy::cli::agent::loadSettings(path, true);
    if (!loaded) {
        if (loaded.error().compare(0, path.size(), path) != 0) {
            std::fprintf(stderr, "a refusal that does not name the file: %s\n", loaded.error().c_str());
            std::abort();
        }
        return 0;
    }
    const AgentSettings& settings = *loaded;
    if (settings.interval.count() <= 0) {
        std::abort();
    }
    const std::string written = asToml(settings);
    auto again = tvpolicy::cli::agent::loadSettings(file.write(written), true);
    if (!again || !same(settings, *again)) {
        std::fprintf(stderr, "settings written back do not load to the same settings (%s):\n%s\n",
                     again.error().c_str(), written.c_str());
        std::abort();
    }
    return 0;
}
