#include <tvpolicy/checks/MonitorResponse.h>

#include <utility>

namespace com::torvane::policy {

MonitorResponse::MonitorResponse(std::string xml) : xml(std::move(xml)) {}

}  // namespace com::torvane::policy
