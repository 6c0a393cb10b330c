#include "net/ResponseText.h"

namespace tvpolicy::net {

namespace {
const std::string cookieMark = "Set-Cookie: ";
}  // namespace

std::string bodyAfterPreamble(std::string body)
{
    std::size_t blank = body.find("\r\n\r\n");
    return blank == std::string::npos ? body : body.substr(blank + 4);
}

bool cookieIn(const std::string& text, std::string& cookie)
{
    std::size_t mark = text.find(cookieMark);
    if (mark == std::string::npos) {
        return false;
    }
    std::size_t start = mark + cookieMark.size();
    std::size_t end = text.find('\r', start);
    cookie = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    return true;
}

}  // namespace tvpolicy::net
