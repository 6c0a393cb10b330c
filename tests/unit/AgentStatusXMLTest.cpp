#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/agent/WifiConfigurationProfile.h>

#include <gtest/gtest.h>

#include <cstring>
#include <iostream>

#include "support/CaptureStream.h"

using com::torvane::AgentStatusXML;
using com::torvane::LoginField;
using com::torvane::WifiConfigurationProfile;

namespace {

const std::string ns = com::torvane::agentSchemaNamespace;

std::string reply(const std::string& body) { return "<reply xmlns='" + ns + "'>" + body + "</reply>"; }

std::shared_ptr<AgentStatusXML> parseReply(const std::string& body)
{
    testing_support::CaptureStream log(std::clog);
    return AgentStatusXML::parse(reply(body));
}

TEST(AgentStatusXML, MapsExactStatusWordsOnly)
{
    using S = AgentStatusXML;
    const std::vector<std::pair<std::string, AgentStatusXML::Status>> cases = {
        {"<status>SUCCESS</status>", S::SUCCESS},
        {"<status>AUTH_FAILURE</status>", S::AUTH_FAILURE},
        {"<status>SCAN_FAILURE</status>", S::SCAN_FAILURE},
        {"<status>ERROR</status>", S::ERROR},
        {"<status>NEEDS_SCAN</status>", S::NEEDS_SCAN},
        {"<status>SCAN_SUCCESS</status>", S::SCAN_SUCCESS},
        {"<status>NEEDS_SWIFTJOIN</status>", S::NEEDS_SWIFTJOIN},
        {"<status>success</status>", S::ERROR},
        {"<status> SUCCESS</status>", S::ERROR},
        {"", S::ERROR},
        {"<x><status>NEEDS_SCAN</status></x><status>SUCCESS</status>", S::NEEDS_SCAN}};
    for (const auto& [body, status] : cases) {
        EXPECT_EQ(parseReply(body)->getStatus(), status) << body;
    }
}

TEST(AgentStatusXML, ReadsTheFirstOfEachElement)
{
    auto status = parseReply(
        "<status>NEEDS_SCAN</status><scanName>full</scanName><scanName>quick</scanName>"
        "<message>m</message><uid>id-1</uid><o:uid xmlns:o='urn:other'>no</o:uid>");
    EXPECT_EQ(status->getStatus(), 4);
    EXPECT_EQ(status->getScanName(), "full");
    EXPECT_EQ(status->getMessage(), "m");
    EXPECT_EQ(status->getUid(), "id-1");
    EXPECT_EQ(status->getWifiProfile(), nullptr);

    AgentStatusXML copy(status);
    EXPECT_EQ(copy.getScanName(), "full");
    EXPECT_EQ(copy.getStatus(), AgentStatusXML::NEEDS_SCAN);
}

TEST(AgentStatusXML, CarriesAWifiProfileShared)
{
    auto status = parseReply(
        "<status>SUCCESS</status><profile><name>Campus</name><SSID>campus-1x</SSID>"
        "<securityType>WPA2_ENTERPRISE</securityType><EAPConfig>PEAP</EAPConfig>"
        "<configCipher>AES</configCipher></profile><profile><name>Second</name></profile>");
    auto profile = status->getWifiProfile();
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->getName(), "Campus");
    EXPECT_EQ(profile->getSecurity(), 6);
    EXPECT_EQ(profile->getEapType(), 4);
    EXPECT_EQ(profile->getCipher(), 0);
    EXPECT_EQ(AgentStatusXML(status).getWifiProfile(), profile);
}

struct ProfileCase {
    std::string body;
    WifiConfigurationProfile::EAPType eap;
    WifiConfigurationProfile::Security security;
    int cipher;
    bool validate;
};

class WifiProfileTest : public testing::TestWithParam<ProfileCase> {};

TEST_P(WifiProfileTest, AppliesEachChildInOrder)
{
    const ProfileCase& c = GetParam();
    testing_support::CaptureStream log(std::clog);
    auto profile = WifiConfigurationProfile::parse("<profile xmlns='" + ns + "'>" + c.body + "</profile>");
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->getEapType(), c.eap);
    EXPECT_EQ(profile->getSecurity(), c.security);
    EXPECT_EQ(profile->getCipher(), c.cipher);
    EXPECT_EQ(profile->getValidateServerCert(), c.validate);
}

using P = WifiConfigurationProfile;
INSTANTIATE_TEST_SUITE_P(
    Children, WifiProfileTest,
    testing::Values(
        ProfileCase{"", P::TLS, P::OPEN, 2, false},
        ProfileCase{"<securityType>WPA2_ENTERPRISE</securityType><EAPConfig>PEAP</EAPConfig>", P::PEAP,
                    P::WPA2_ENTERPRISE, 2, false},
        // An unknown EAP or security word keeps the earlier value; an unknown cipher word sets 2.
        ProfileCase{
            "<EAPConfig>TTLS</EAPConfig><EAPConfig>MD5</EAPConfig><securityType>WEP</securityType>"
            "<securityType>wpa2</securityType><configCipher>TKIP</configCipher><configCipher>CCMP</configCipher>",
            P::TTLS, P::WEP, 2, false},
        ProfileCase{
            "<EAPConfig>EAP_SIM</EAPConfig><securityType>WPA_ENTERPRISE</securityType><configCipher>TKIP</configCipher>"
            "<validateServerCertWindows>true</validateServerCertWindows>",
            P::EAP_SIM, P::WPA_ENTERPRISE, 1, true},
        ProfileCase{"<EAPConfig>LEAP</EAPConfig><securityType>WEP_ENTERPRISE</securityType>"
                    "<validateServerCertWindows>True</validateServerCertWindows>",
                    P::LEAP, P::WEP_ENTERPRISE, 2, false},
        ProfileCase{"<validateServerCertWindows>true</validateServerCertWindows>"
                    "<validateServerCertWindows>false</validateServerCertWindows>",
                    P::TLS, P::OPEN, 2, false}));

TEST(WifiConfigurationProfile, TextsAndCertificate)
{
    testing_support::CaptureStream log(std::clog);
    auto profile =
        WifiConfigurationProfile::parse("<profile xmlns='" + ns +
                                        "'><name>N</name><SSID>S</SSID><password>p&amp;w</password>"
                                        "<CAFingerprint>AB:CD</CAFingerprint><unknown>x</unknown></profile>");
    EXPECT_EQ(profile->getName() + "|" + profile->getSSID() + "|" + profile->getPassword() + "|" +
                  profile->getCAFingerprint(),
              "N|S|p&w|AB:CD");
    EXPECT_EQ(profile->getCertificate(), nullptr);
    profile->setCertificate("\x30\x82\x00\x01", 4);
    auto shared = profile->getCertificate();
    EXPECT_EQ(std::memcmp(shared.get(), "\x30\x82\x00\x01", 4), 0);
    EXPECT_EQ(profile->getCertificate(), shared);
    EXPECT_EQ(WifiConfigurationProfile::parse("not xml"), nullptr);
}

TEST(LoginField, TypeWordsAreExact)
{
    LoginField field;
    EXPECT_EQ(field.setType("PASSWORD"), LoginField::PASSWORD);
    EXPECT_EQ(field.setType("SELECT"), LoginField::SELECT);
    EXPECT_EQ(field.setType("select"), LoginField::TEXT);
    EXPECT_EQ(field.getType(), LoginField::TEXT);
    EXPECT_EQ(field.setType("TEXT"), LoginField::TEXT);
}

TEST(LoginField, ParsesASelectFieldWithItsOptionsInOrder)
{
    testing_support::CaptureStream log(std::clog);
    auto field = LoginField::parse("<field xmlns='" + ns +
                                   "' id='x' name='realm'><label>Realm</label><type>SELECT</type>"
                                   "<option><name>Staff</name><value>staff</value></option>"
                                   "<option><value>guest</value><name>Guests</name></option>"
                                   "<option><name>Lab \xc3\xa9</name><value>lab</value></option></field>");
    ASSERT_TRUE(field);
    EXPECT_EQ(field->getName(), "realm");
    EXPECT_EQ(field->getLabel(), "Realm");
    EXPECT_EQ(field->getType(), LoginField::SELECT);
    std::vector<std::string> options;
    for (const auto& option : field->getOptions()) {
        options.push_back(option.name + "=" + option.value);
    }
    EXPECT_EQ(options, (std::vector<std::string>{"Staff=staff", "Guests=guest", "Lab \xc3\xa9=lab"}));
}

TEST(LoginField, NameComesOnlyFromTheAttribute)
{
    testing_support::CaptureStream log(std::clog);
    auto field = LoginField::parse("<field><name>user</name><type>select</type></field>");
    ASSERT_TRUE(field);
    EXPECT_EQ(field->getName(), "");
    EXPECT_EQ(field->getType(), LoginField::TEXT);
    EXPECT_EQ(LoginField::parse(""), nullptr);
}

}  // namespace
