#include "io/Console.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace tvpolicy::cli {

namespace {

// A copy of `fd` above the standard descriptors; -1 when `fd` is closed, so that writes to it
// fail (and are reported) instead of landing wherever a later open puts its descriptor.
int duplicate(int fd) { return ::fcntl(fd, F_DUPFD_CLOEXEC, 3); }

}  // namespace

Console::Console()
    : realOut_(duplicate(STDOUT_FILENO)),
      realErr_(duplicate(STDERR_FILENO)),
      outBuf_(realOut_.get()),
      errBuf_(realErr_.get()),
      out_(&outBuf_),
      err_(&errBuf_),
      coutBuffer_(std::cout.rdbuf()),
      cerrBuffer_(std::cerr.rdbuf()),
      clogBuffer_(std::clog.rdbuf())
{
    err_.setf(std::ios::unitbuf);
}

Console::~Console()
{
    out_.flush();
    err_.flush();
    std::cout.rdbuf(coutBuffer_);
    std::cerr.rdbuf(cerrBuffer_);
    std::clog.rdbuf(clogBuffer_);
    std::fflush(nullptr);
    ::dup2(realOut_.get(), STDOUT_FILENO);
    ::dup2(realErr_.get(), STDERR_FILENO);
}

Result<void> Console::outDelivered()
{
    out_.flush();
    int error = outBuf_.firstError();
    if (error == 0 && out_) {
        return {};
    }
    return Failure{error == EBADF ? "it is closed" : std::strerror(error != 0 ? error : EIO)};
}

void Console::routeLibraryTo(int fd, bool discard)
{
    std::cout.flush();
    std::clog.flush();
    std::fflush(nullptr);
    ::dup2(fd, STDOUT_FILENO);
    ::dup2(fd, STDERR_FILENO);
    libraryFd_ = fd;
    // A stream without a buffer is in a failed state: the library's log lines then cost nothing.
    std::cout.rdbuf(discard ? nullptr : coutBuffer_);
    std::cerr.rdbuf(discard ? nullptr : cerrBuffer_);
    std::clog.rdbuf(discard ? nullptr : clogBuffer_);
}

void Console::hideLibraryOutput()
{
    sink_.reset(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    routeLibraryTo(sink_.get(), true);
}

void Console::showLibraryOutput()
{
    libraryShown_ = true;
    routeLibraryTo(realErr_.get(), false);
}

Result<void> Console::logLibraryOutputTo(const std::string& path)
{
    OwnedFd file(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644));
    if (!file) {
        return Failure{"cannot open log file " + path + ": " + std::strerror(errno)};
    }
    sink_ = std::move(file);
    routeLibraryTo(sink_.get(), false);
    return {};
}

Console::LibraryStdout::LibraryStdout(Console& console) : console_(console), savedBuffer_(std::cout.rdbuf())
{
    console_.out_.flush();
    std::cout.flush();
    std::fflush(stdout);
    ::dup2(console_.realOut_.get(), STDOUT_FILENO);
    std::cout.rdbuf(console_.coutBuffer_);
}

Console::LibraryStdout::~LibraryStdout()
{
    std::cout.flush();
    std::fflush(stdout);
    int fd = console_.libraryFd_ >= 0 ? console_.libraryFd_ : console_.realOut_.get();
    ::dup2(fd, STDOUT_FILENO);
    std::cout.rdbuf(savedBuffer_);
}

}  // namespace tvpolicy::cli
