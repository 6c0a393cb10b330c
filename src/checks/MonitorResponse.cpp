#include <tvpolicy/checks/MonitorResponse.h>

#include <utility>

namespace com::torvane::policy {

MonitorResponse::MonitorResponse(std::string text) : xml(std::move(text)) {}

}  // namespace com::torvane::policy
