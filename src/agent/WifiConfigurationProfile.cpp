#include <tvpolicy/agent/WifiConfigurationProfile.h>

#include <algorithm>
#include <iterator>

#include <xercesc/dom/DOMElement.hpp>

#include "agent/AgentDocument.h"
#include "xml/DomText.h"

namespace com::torvane {

using namespace xercesc;

namespace {

template <typename Value, std::size_t N>
bool lookUp(const std::pair<const char*, Value> (&table)[N], const std::string& word, Value& value)
{
    auto found =
        std::find_if(std::begin(table), std::end(table), [&](const auto& entry) { return word == entry.first; });
    if (found == std::end(table)) {
        return false;
    }
    value = found->second;
    return true;
}

using Profile = WifiConfigurationProfile;

const std::pair<const char*, Profile::EAPType> eapWords[] = {{"TLS", Profile::TLS},
                                                             {"LEAP", Profile::LEAP},
                                                             {"TTLS", Profile::TTLS},
                                                             {"PEAP", Profile::PEAP},
                                                             {"EAP_SIM", Profile::EAP_SIM}};

const std::pair<const char*, Profile::Security> securityWords[] = {{"OPEN", Profile::OPEN},
                                                                   {"WEP", Profile::WEP},
                                                                   {"WEP_ENTERPRISE", Profile::WEP_ENTERPRISE},
                                                                   {"WPA", Profile::WPA},
                                                                   {"WPA_ENTERPRISE", Profile::WPA_ENTERPRISE},
                                                                   {"WPA2", Profile::WPA2},
                                                                   {"WPA2_ENTERPRISE", Profile::WPA2_ENTERPRISE}};

const std::pair<const char*, Profile::Cipher> cipherWords[] = {{"AES", Profile::AES}, {"TKIP", Profile::TKIP}};

using Apply = void (*)(Profile&, const std::string&);

// The children of a profile element and what each does with its text.
const std::pair<const XMLCh*, Apply> childRules[] = {
    {u"EAPConfig", [](Profile& p, const std::string& t) { p.setEapType(t); }},
    {u"name", [](Profile& p, const std::string& t) { p.setName(t); }},
    {u"SSID", [](Profile& p, const std::string& t) { p.setSSID(t); }},
    {u"securityType", [](Profile& p, const std::string& t) { p.setSecurity(t); }},
    {u"password", [](Profile& p, const std::string& t) { p.setPassword(t); }},
    {u"configCipher", [](Profile& p, const std::string& t) { p.setCipher(t); }},
    {u"CAFingerprint", [](Profile& p, const std::string& t) { p.setCAFingerprint(t); }},
    {u"validateServerCertWindows", [](Profile& p, const std::string& t) { p.setValidateServerCert(t == "true"); }},
};

}  // namespace

void WifiConfigurationProfile::setEapType(const std::string& word) { lookUp(eapWords, word, eapType); }

void WifiConfigurationProfile::setSecurity(const std::string& word) { lookUp(securityWords, word, security); }

void WifiConfigurationProfile::setCipher(const std::string& word)
{
    Cipher code = OTHER_CIPHER;
    lookUp(cipherWords, word, code);
    cipher = code;
}

void WifiConfigurationProfile::setCertificate(const char* bytes, std::size_t length)
{
    std::shared_ptr<char> copy(new char[length], std::default_delete<char[]>());
    std::copy_n(bytes, length, copy.get());
    certificate = std::move(copy);
}

std::shared_ptr<WifiConfigurationProfile> WifiConfigurationProfile::parseNode(DOMNode* profileElement)
{
    auto profile = std::make_shared<WifiConfigurationProfile>();
    tvpolicy::xml::forEachChildElement(profileElement, [&](const XMLCh* tag, const DOMNode* child) {
        for (const auto& [element, apply] : childRules) {
            if (tvpolicy::xml::sameName(tag, element)) {
                apply(*profile, detail::nativeTextOf(child));
                break;
            }
        }
    });
    return profile;
}

std::shared_ptr<WifiConfigurationProfile> WifiConfigurationProfile::parse(std::string xmlText)
{
    return detail::parseDocumentElement<WifiConfigurationProfile>(xmlText, "Config");
}

}  // namespace com::torvane
