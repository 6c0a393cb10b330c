#include "policy/DocumentFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>
#include <utility>

#include <tvpolicy/base/OwnedFd.h>
#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli {

namespace {

// All of `fd`; a failure on a read error or past `maxBytes`.
Result<std::string> readAll(int fd, std::size_t maxBytes)
{
    std::string content;
    switch (readBounded(fd, maxBytes, content)) {
    case ReadEnd::Complete: return content;
    case ReadEnd::OverLimit:
        return Failure{"larger than the limit of " + std::to_string(maxBytes >> 20) + " MB (--max-size)"};
    case ReadEnd::WouldBlock:
    case ReadEnd::Failed: break;
    }
    return Failure{std::strerror(errno)};
}

}  // namespace

DocumentRead readDocument(const std::string& path, std::size_t maxBytes)
{
    auto fail = [&](const std::string& reason, int code = 0) -> DocumentRead {
        return Failure{
            "cannot read " + (path == "-" ? std::string("standard input") : "'" + path + "'") + ": " + reason, code};
    };
    auto readWhole = [&](int fd) {
        Result<std::string> text = readAll(fd, maxBytes);
        return text ? text : fail(text.error());
    };
    if (path == "-") {
        return readWhole(STDIN_FILENO);
    }
    OwnedFd file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info {};
    if (!file || ::fstat(file.get(), &info) != 0) {
        return fail(std::strerror(errno));
    }
    if (S_ISDIR(info.st_mode)) {
        return fail("is a directory", EISDIR);
    }
    if (S_ISREG(info.st_mode) && static_cast<std::uint64_t>(info.st_size) > maxBytes) {
        return fail("larger than the limit of " + std::to_string(maxBytes >> 20) + " MB (--max-size)");
    }
    // Opened without blocking so that a FIFO without a writer cannot hang the open; reads block.
    ::fcntl(file.get(), F_SETFL, ::fcntl(file.get(), F_GETFL) & ~O_NONBLOCK);
    return readWhole(file.get());
}

std::optional<std::string> loadDocument(Console& console, const std::string& command, const std::string& path,
                                        std::size_t maxBytes)
{
    DocumentRead read = readDocument(path, maxBytes);
    if (!read) {
        console.err() << "tvpolicy " << command << ": " << read.error() << '\n';
        return std::nullopt;
    }
    return std::move(read).value();
}

std::string problemOf(const tvpolicy::DocumentCheck& check, const std::string& text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
        return text.empty() ? "is empty" : "holds only white space";
    }
    std::string problem = "not XML: " + (check.problem.empty() ? std::string("no element") : check.problem);
    if (check.location.line > 0) {
        problem +=
            " at line " + std::to_string(check.location.line) + ", column " + std::to_string(check.location.column);
    }
    return problem;
}

std::optional<std::string> loadXmlDocument(Console& console, const std::string& command, const std::string& path)
{
    std::optional<std::string> text = loadDocument(console, command, path);
    if (!text) {
        return std::nullopt;
    }
    tvpolicy::DocumentCheck check = tvpolicy::checkDocument(*text);
    if (!check.readable) {
        console.err() << "tvpolicy " << command << ": " << (path == "-" ? "standard input" : path) << ": "
                      << problemOf(check, *text) << '\n';
        return std::nullopt;
    }
    return text;
}

}  // namespace tvpolicy::cli
