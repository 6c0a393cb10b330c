#include "net/CurlHandle.h"

#include <mutex>

namespace tvpolicy::net {

CurlHandle makeCurlHandle()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    return CurlHandle(curl_easy_init());
}

std::string whyNoCurlHandle()
{
    return std::string("cannot start a transfer: ") + curl_easy_strerror(CURLE_FAILED_INIT);
}

extern "C" std::size_t appendBounded(char* data, std::size_t size, std::size_t count, void* target)
{
    auto* sink = static_cast<BoundedText*>(target);
    std::size_t bytes = size * count;
    try {
        if (bytes > sink->maxBytes - sink->text->size()) {
            sink->tooLarge = true;
            return 0;
        }
        sink->text->append(data, bytes);
        return bytes;
    } catch (...) {
        return 0;
    }
}

}  // namespace tvpolicy::net
