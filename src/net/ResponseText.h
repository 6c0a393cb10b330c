#pragma once

#include <string>

// What the agent reads out of an HTTP answer once it has arrived. Pure text work, no transfer.
namespace tvpolicy::net {

/// The body after its first CR LF CR LF: the answer of a server that sends its own header
/// lines in the body. The whole body when it holds none.
std::string bodyAfterPreamble(std::string body);

/// The text after the first "Set-Cookie: " of `text` up to the next carriage return (or the
/// end), in `cookie`; false, `cookie` untouched, when the mark is absent.
bool cookieIn(const std::string& text, std::string& cookie);

}  // namespace tvpolicy::net
