#pragma once

#include <tvpolicy/agent/StreamSocket.h>
#include <tvpolicy/export.h>

namespace com::torvane {

/// The type of a connection the agent secures itself: it connects, sends and receives exactly
/// as a StreamSocket does. The secured transport is the caller's.
class TVPOLICY_API SslStreamSocket : public StreamSocket {
public:
    SslStreamSocket();
    ~SslStreamSocket() override;
};

}  // namespace com::torvane
