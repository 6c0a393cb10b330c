#include "DocumentFile.h"

#include <cerrno>
#include <cstring>
#include <utility>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "UniqueFd.h"

namespace cli {

namespace {

// Documents are small; anything bigger is refused rather than read into memory.
constexpr std::size_t maxDocumentBytes = 64u << 20;

// Reads the whole file at `path` into `text`; false, with `error` set, when it cannot be read.
bool readDocumentFile(const std::string& path, std::string& text, std::string& error)
{
    auto fail = [&](const std::string& why) {
        error = "cannot read " + path + ": " + why;
        return false;
    };
    UniqueFd file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat info {};
    if (!file || ::fstat(file.get(), &info) != 0) {
        return fail(std::strerror(errno));
    }
    if (S_ISDIR(info.st_mode)) {
        return fail(std::strerror(EISDIR));
    }
    std::string content;
    char buffer[65536];
    for (;;) {
        ssize_t count = ::read(file.get(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return fail(std::strerror(errno));
        }
        if (count == 0) {
            break;
        }
        content.append(buffer, static_cast<std::size_t>(count));
        if (content.size() > maxDocumentBytes) {
            return fail("larger than 64 MB");
        }
    }
    text = std::move(content);
    return true;
}

}  // namespace

std::optional<std::string> loadDocument(Console& console, const std::string& command, const std::string& path)
{
    std::string text;
    std::string error;
    if (!readDocumentFile(path, text, error)) {
        console.err() << "tvpolicy " << command << ": " << error << '\n';
        return std::nullopt;
    }
    return text;
}

}  // namespace cli
