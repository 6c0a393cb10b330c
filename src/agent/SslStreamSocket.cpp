#include <tvpolicy/agent/SslStreamSocket.h>

namespace com::torvane {

SslStreamSocket::SslStreamSocket() : StreamSocket() {}

SslStreamSocket::~SslStreamSocket() = default;

}  // namespace com::torvane
