// tvpolicy wifi status | wifi join PROFILE.xml: the Wi-Fi network this computer is on, and
// joining the network a Wi-Fi profile document describes.
#include <memory>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/agent/WifiManager.h>
#include <tvpolicy/host/NetworkProbe.h>

#include "commands/Command.h"
#include "policy/DocumentFile.h"

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::ordered_json;

int status(Console& console, bool json)
{
    std::optional<tvpolicy::NetworkProbe::WifiStatus> wifi = tvpolicy::currentNetwork().wifiStatus();
    WifiManager manager;
    std::string ssid = wifi ? manager.getCurrentProfileNameUtf8() : std::string();
    std::string bssid = wifi ? manager.getCurrentBSSID() : std::string();
    if (json) {
        console.out() << Json{{"interface", wifi ? Json(wifi->interfaceName) : Json(nullptr)},
                              {"ssid", ssid},
                              {"bssid", bssid}}
                             .dump(2, ' ', false, Json::error_handler_t::replace)
                      << '\n';
    } else if (!wifi) {
        console.out() << "No Wi-Fi interface (or NetworkManager is not running)\n";
    } else {
        console.out() << "Interface:  " << wifi->interfaceName << '\n'
                      << "SSID:       " << (ssid.empty() ? "(not associated)" : ssid) << '\n'
                      << "BSSID:      " << bssid << '\n';
    }
    return wifi ? exitPassed : exitFailed;
}

int join(Console& console, const std::string& file)
{
    std::optional<std::string> text = loadDocument(console, "wifi join", file);
    if (!text) {
        return exitUsage;
    }
    std::shared_ptr<com::torvane::WifiConfigurationProfile> profile =
        com::torvane::WifiConfigurationProfile::parse(*text);
    if (!profile || profile->getSSID().empty()) {
        console.err() << "tvpolicy wifi join: " << file << " holds no profile with an SSID\n";
        return exitUsage;
    }
    WifiManager manager;
    if (manager.createModifyProfile(*profile)) {
        console.out() << "Joined " << profile->getSSID() << '\n';
        return exitPassed;
    }
    // With -v the library's own lines above say why; without, the person learns where to look.
    console.out() << "Not on " << profile->getSSID()
                  << (console.libraryShown() ? " (the lines above say why)\n" : " (run with -v to see why)\n");
    return exitFailed;
}

CommandAction setupWifi(CLI::App& app)
{
    struct Options {
        bool json = false;
        std::string file;
    };
    auto options = std::make_shared<Options>();
    app.require_subcommand(1);
    CLI::App* statusCommand = app.add_subcommand("status", "Print the Wi-Fi interface, its network and access point");
    statusCommand->add_flag("--json", options->json, "Print one JSON object");
    CLI::App* joinCommand = app.add_subcommand(
        "join", "Store the profile of a Wi-Fi profile document as the preferred network and join it");
    joinCommand->add_option("PROFILE", options->file, "The profile document, as `show profile` reads it")->required();
    return [options, statusCommand](Console& console) {
        return statusCommand->parsed() ? status(console, options->json) : join(console, options->file);
    };
}

const bool registered = registerCommand(
    {"wifi", "Show the current Wi-Fi network, or join the network of a Wi-Fi profile document", 46, &setupWifi});

}  // namespace
}  // namespace tvpolicy::cli
