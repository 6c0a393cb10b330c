// tvpolicy show config|status|profile FILE [--json]: what the agent reads from a document the
// server sends, for administrators checking it.
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/DocumentCheck.h>
#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/agent/WifiConfigurationProfile.h>

#include "commands/Command.h"
#include "policy/AgentDocumentScan.h"
#include "policy/DocumentFile.h"

namespace tvpolicy::cli {

namespace {

using Json = nlohmann::ordered_json;
using com::torvane::AgentConfigXML;
using com::torvane::AgentStatusXML;
using com::torvane::LoginField;
using com::torvane::WifiConfigurationProfile;

template <typename Value>
std::string wordOf(Value value, const std::map<Value, const char*>& words)
{
    auto found = words.find(value);
    return found != words.end() ? found->second : std::to_string(static_cast<int>(value));
}

std::string typeWord(LoginField::Type type)
{
    return wordOf(type,
                  {{LoginField::TEXT, "TEXT"}, {LoginField::PASSWORD, "PASSWORD"}, {LoginField::SELECT, "SELECT"}});
}

Json fieldJson(const LoginField& field)
{
    Json options = Json::array();
    for (const auto& option : field.getOptions()) {
        options.push_back({{"name", option.name}, {"value", option.value}});
    }
    return {{"name", field.getName()},
            {"label", field.getLabel()},
            {"type", typeWord(field.getType())},
            {"options", options}};
}

Json configJson(const AgentConfigXML& c)
{
    Json fields = Json::array();
    for (const auto& field : c.fieldList) {
        fields.push_back(fieldJson(*field));
    }
    return {{"loginUrl", c.loginUrl},
            {"message", c.message},
            {"submitText", c.submitText},
            {"loginRequired", c.loginRequired},
            {"scanUrl", c.scanUrl},
            {"uid", c.uid},
            {"showPassedTests", c.showPassedTests},
            {"showIntro", c.showIntro},
            {"showFinished", c.showFinished},
            {"rescanText", c.rescanText},
            {"cancelText", c.cancelText},
            {"finishText", c.finishText},
            {"resultsText", c.resultsText},
            {"successText", c.successText},
            {"showSuccess", c.showSuccess},
            {"sjLoginTitle", c.sjLoginTitle},
            {"sjLoginMessage", c.sjLoginMessage},
            {"connTestURL", c.connTestURL},
            {"fields", fields}};
}

Json profileJson(const WifiConfigurationProfile& p, bool reveal)
{
    using W = WifiConfigurationProfile;
    std::string password = p.getPassword();
    if (!reveal && !password.empty()) {
        password = "(hidden; --reveal shows it)";
    }
    return {
        {"name", p.getName()},
        {"SSID", p.getSSID()},
        {"securityType", wordOf(p.getSecurity(), {{W::OPEN, "OPEN"},
                                                  {W::WEP, "WEP"},
                                                  {W::WEP_ENTERPRISE, "WEP_ENTERPRISE"},
                                                  {W::WPA, "WPA"},
                                                  {W::WPA_ENTERPRISE, "WPA_ENTERPRISE"},
                                                  {W::WPA2, "WPA2"},
                                                  {W::WPA2_ENTERPRISE, "WPA2_ENTERPRISE"}})},
        {"EAPConfig",
         wordOf(p.getEapType(),
                {{W::TLS, "TLS"}, {W::LEAP, "LEAP"}, {W::TTLS, "TTLS"}, {W::PEAP, "PEAP"}, {W::EAP_SIM, "EAP_SIM"}})},
        {"configCipher", wordOf(p.getCipher(), {{W::AES, "AES"}, {W::TKIP, "TKIP"}, {W::OTHER_CIPHER, "other"}})},
        {"password", password},
        {"CAFingerprint", p.getCAFingerprint()},
        {"validateServerCert", p.getValidateServerCert()}};
}

Json statusJson(const AgentStatusXML& s, bool reveal)
{
    std::string word = wordOf(s.getStatus(), {{AgentStatusXML::SUCCESS, "SUCCESS"},
                                              {AgentStatusXML::AUTH_FAILURE, "AUTH_FAILURE"},
                                              {AgentStatusXML::SCAN_FAILURE, "SCAN_FAILURE"},
                                              {AgentStatusXML::ERROR, "ERROR"},
                                              {AgentStatusXML::NEEDS_SCAN, "NEEDS_SCAN"},
                                              {AgentStatusXML::SCAN_SUCCESS, "SCAN_SUCCESS"},
                                              {AgentStatusXML::NEEDS_SWIFTJOIN, "NEEDS_SWIFTJOIN"}});
    auto profile = s.getWifiProfile();
    return {{"status", word},
            {"message", s.getMessage()},
            {"scanName", s.getScanName()},
            {"uid", s.getUid()},
            {"profile", profile ? profileJson(*profile, reveal) : Json(nullptr)}};
}

// One "path: value" line per value, in document order: fields[1].options[0].name: Staff
void printLines(std::ostream& out, const Json& value, const std::string& path)
{
    if (value.is_object()) {
        for (const auto& [key, item] : value.items()) {
            printLines(out, item, path.empty() ? key : path + "." + key);
        }
    } else if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            printLines(out, value[i], path + "[" + std::to_string(i) + "]");
        }
    } else {
        out << path << ": " << (value.is_string() ? value.get<std::string>() : value.dump()) << '\n';
    }
}

CommandAction setupShow(CLI::App& app)
{
    struct Options {
        std::string kind;
        std::string file;
        bool json = false;
        bool reveal = false;
    };
    auto options = std::make_shared<Options>();
    app.add_option("KIND", options->kind, "config, status or profile")
        ->required()
        ->check(CLI::IsMember({"config", "status", "profile"}));
    app.add_option("FILE", options->file, "The document, as the server sends it, or - for standard input")->required();
    app.add_flag("--json", options->json, "Print one JSON object instead of one line per value");
    app.add_flag("--reveal", options->reveal, "Show Wi-Fi pass phrases instead of hiding them");

    return [options](Console& console) -> int {
        std::optional<std::string> loaded = loadXmlDocument(console, "show", options->file);
        if (!loaded) {
            return exitUsage;
        }
        const std::string& text = *loaded;
        // The readers take elements of the agent namespace only: a document without any would
        // show nothing but defaults.
        tvpolicy::DocumentCheck check = tvpolicy::checkDocument(text);
        if (check.agentElements == 0) {
            console.err() << "tvpolicy show: " << (options->file == "-" ? "standard input" : options->file)
                          << " is not an agent document: no element is in the namespace "
                          << com::torvane::agentSchemaNamespace << " (its root element is <" << check.rootElement
                          << ">)\n";
            return exitUsage;
        }
        Json shown;
        // A profile is the first <profile> wherever it stands (a status reply holds one), as the
        // status reader finds it; a document without one is read as a profile itself.
        std::shared_ptr<WifiConfigurationProfile> profile;
        if (options->kind == "profile") {
            profile = AgentStatusXML::parse(text)->getWifiProfile();
            if (!profile) {
                profile = WifiConfigurationProfile::parse(text);
            }
        }
        if (options->kind == "config") {
            shown = configJson(*AgentConfigXML::parse(text));
        } else if (options->kind == "status") {
            shown = statusJson(*AgentStatusXML::parse(text), options->reveal);
        } else if (profile) {
            shown = profileJson(*profile, options->reveal);
        } else {
            console.err() << "tvpolicy show: " << options->file << " holds no profile element\n";
            return exitUsage;
        }
        for (const Notice& notice : agentDocumentNotices(options->kind, text)) {
            console.err() << "tvpolicy show: warning: " << describe(notice) << '\n';
        }
        if (options->json) {
            console.out() << shown.dump(2) << '\n';
        } else {
            printLines(console.out(), shown, "");
        }
        return exitPassed;
    };
}

const bool registered =
    registerCommand({"show", "Print what the agent reads from a configuration, status reply or Wi-Fi profile document",
                     40, &setupShow});

}  // namespace
}  // namespace tvpolicy::cli
