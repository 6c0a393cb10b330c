#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include <xercesc/dom/DOMNode.hpp>

#include <tvpolicy/export.h>

namespace com::torvane {

/// A wireless network the server wants this machine to join: profile name, SSID, security,
/// pass phrase, cipher, 802.1X method and the trust settings for the authentication server.
///
///     <profile><name>Campus</name><SSID>campus</SSID><securityType>WPA2_ENTERPRISE</securityType>
///       <EAPConfig>PEAP</EAPConfig><configCipher>AES</configCipher>
///       <CAFingerprint>..</CAFingerprint><validateServerCertWindows>true</validateServerCertWindows>
///     </profile>
class TVPOLICY_API WifiConfigurationProfile {
public:
    /// 802.1X method; value 2 has no word of its own.
    enum EAPType { TLS = 0, LEAP = 1, EAP_UNNAMED = 2, TTLS = 3, PEAP = 4, EAP_SIM = 5 };
    enum Security { OPEN = 0, WEP = 1, WEP_ENTERPRISE = 2, WPA = 3, WPA_ENTERPRISE = 4, WPA2 = 5, WPA2_ENTERPRISE = 6 };
    /// Cipher codes: "AES", "TKIP", and every other word.
    enum Cipher { AES = 0, TKIP = 1, OTHER_CIPHER = 2 };

    WifiConfigurationProfile() = default;
    virtual ~WifiConfigurationProfile() = default;

    /// A new profile read from the children of a profile element, matched by local name; a
    /// child that occurs twice is applied twice. Null gives a new, empty profile.
    static std::shared_ptr<WifiConfigurationProfile> parseNode(xercesc::DOMNode* profileElement);
    /// A new profile read from the document element of `xmlText`; empty when there is none.
    static std::shared_ptr<WifiConfigurationProfile> parse(std::string xmlText);

    /// Exact words only; an unknown word leaves the method as it was.
    void setEapType(const std::string& word);
    void setEapType(EAPType value) { eapType = value; }
    /// Exact words only; an unknown word leaves the security as it was.
    void setSecurity(const std::string& word);
    void setSecurity(Security value) { security = value; }
    /// "AES" gives 0, "TKIP" 1, any other word 2.
    void setCipher(const std::string& word);
    void setName(std::string value) { name = std::move(value); }
    void setSSID(std::string value) { SSID = std::move(value); }
    void setPassword(std::string value) { password = std::move(value); }
    void setCAFingerprint(const std::string& value) { CAFingerprint = value; }
    void setValidateServerCert(bool value) { validateServerCert = value; }
    /// Copies `length` bytes into a new array that replaces the certificate.
    void setCertificate(const char* bytes, std::size_t length);

    EAPType getEapType() const { return eapType; }
    Security getSecurity() const { return security; }
    int getCipher() const { return cipher; }
    std::string getName() const { return name; }
    std::string getSSID() const { return SSID; }
    std::string getPassword() const { return password; }
    std::string getCAFingerprint() const { return CAFingerprint; }
    bool getValidateServerCert() const { return validateServerCert; }
    /// The certificate bytes, shared (not copied); empty until set. Its length is the caller's
    /// to keep.
    std::shared_ptr<char> getCertificate() const { return certificate; }

private:
    EAPType eapType = TLS;
    Security security = OPEN;
    int cipher = OTHER_CIPHER;
    std::string name;
    std::string SSID;
    std::string password;
    std::string CAFingerprint;
    std::shared_ptr<char> certificate;
    bool validateServerCert = false;
};

}  // namespace com::torvane
