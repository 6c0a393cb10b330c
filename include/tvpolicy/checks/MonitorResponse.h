#pragma once

#include <string>

#include <tvpolicy/export.h>

namespace com::torvane::policy {

/// What one run of a monitor reports: "<monitor><id>ID</id><status>true|false</status></monitor>".
class TVPOLICY_API MonitorResponse {
public:
    explicit MonitorResponse(std::string xml);
    virtual ~MonitorResponse() = default;

    std::string getXML() const { return xml; }

private:
    std::string xml;
};

}  // namespace com::torvane::policy
