#pragma once

#include <memory>
#include <string>

#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/export.h>

namespace com::torvane {

/// The server's reply to an agent request, in the agent schema namespace:
///
///     <reply xmlns="urn:torvane:agent:1"><status>NEEDS_SCAN</status><message>..</message>
///       <scanName>..</scanName><uid>..</uid><profile>..</profile></reply>
///
/// Each element is found anywhere in the document; the first of each name counts.
class TVPOLICY_API AgentStatusXML {
public:
    enum Status {
        SUCCESS = 0,
        AUTH_FAILURE = 1,
        SCAN_FAILURE = 2,
        ERROR = 3,
        NEEDS_SCAN = 4,
        SCAN_SUCCESS = 5,
        NEEDS_SWIFTJOIN = 6
    };

    /// Empty texts, no profile, status ERROR.
    AgentStatusXML() = default;
    /// Copies every member; the Wi-Fi profile is shared, not copied. Null gives a new object.
    explicit AgentStatusXML(std::shared_ptr<AgentStatusXML> other);
    virtual ~AgentStatusXML() = default;

    /// Reads a reply; always returns an object. Problems are logged; an unknown status word
    /// gives ERROR.
    static std::shared_ptr<AgentStatusXML> parse(std::string xmlText);

    std::string getMessage() const { return message; }
    Status getStatus() const { return status; }
    /// The Wi-Fi profile the reply carries; empty when it carries none.
    std::shared_ptr<WifiConfigurationProfile> getWifiProfile() const { return wifiProfile; }
    std::string getScanName() const { return scanName; }
    std::string getUid() const { return uid; }

private:
    std::string message;
    Status status = ERROR;
    std::shared_ptr<WifiConfigurationProfile> wifiProfile;
    std::string scanName;
    std::string uid;
};

}  // namespace com::torvane
