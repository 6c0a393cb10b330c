// What the HTTP client reads out of an answer: the body collected within its cap in the blocks
// that arrive, the body after its own header lines, and the cookie of "Set-Cookie: ".
//
// The first two bytes are the cap (in bytes) and the third the block size; the rest arrives.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "net/CurlHandle.h"
#include "net/ResponseText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tvpolicy::net;
    if (size < 3) {
        return 0;
    }
    std::size_t cap = static_cast<std::size_t>(data[0]) << 8 | data[1];
    std::size_t block = data[2] == 0 ? 1 : data[2];
    std::vector<char> answer(data + 3, data + size);

    std::string body;
    BoundedText sink{&body, cap};
    std::size_t at = 0;
    while (at < answer.size()) {
        std::size_t length = std::min(block, answer.size() - at);
        if (appendBounded(answer.data() + at, 1, length, &sink) != length) {
            break;
        }
        at += length;
    }
    if (body.size() > cap || body.compare(0, std::string::npos, answer.data(), at) != 0 ||
        sink.tooLarge != (at < answer.size())) {
        std::abort();  // within the cap, exactly what arrived, refused only at the cap
    }

    std::string stripped = bodyAfterPreamble(body);
    if (stripped.size() > body.size() ||
        body.compare(body.size() - stripped.size(), std::string::npos, stripped) != 0) {
        std::abort();  // a tail of the body
    }
    std::string cookie;
    if (cookieIn(body, cookie) && (cookie.find('\r') != std::string::npos || body.find(cookie) == std::string::npos)) {
        std::abort();
    }
    return 0;
}
