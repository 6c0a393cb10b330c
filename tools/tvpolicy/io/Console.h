#pragma once

#include <memory>
#include <ostream>
#include <string>

#include <tvpolicy/base/OwnedFd.h>
#include <tvpolicy/base/Result.h>
#include "io/FdStreamBuf.h"

namespace tvpolicy::cli {

/// The terminal the person sees, kept apart from the library's own output.
///
/// The library logs to the standard streams (and its helpers' children inherit them). Once
/// `hideLibraryOutput` or one of its siblings has run, descriptors 1 and 2 point at the log
/// destination, and the CLI writes its own results through `out()` and `err()` only. So the
/// output of `--json` stays clean whatever the library prints.
class Console {
public:
    Console();
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    std::ostream& out() { return out_; }
    std::ostream& err() { return err_; }
    /// The descriptor behind err(), for writes that cannot go through a stream (a signal handler).
    int errFd() const { return realErr_.get(); }
    /// The descriptor behind out() (the person's standard output; -1 when it was closed).
    int outFd() const { return realOut_.get(); }
    /// Flushes out(); a failure when anything written to it was lost (a full disk, a closed
    /// standard output).
    Result<void> outDelivered();

    /// The library's output is discarded (the default).
    void hideLibraryOutput();
    /// The library's output goes to the person's standard error.
    void showLibraryOutput();
    /// Whether the person asked to see the library's output (-v).
    bool libraryShown() const { return libraryShown_; }
    /// The library's output is appended to `path`; a failure if it cannot be opened.
    Result<void> logLibraryOutputTo(const std::string& path);

    /// While alive, what the library writes to standard output reaches the person's standard
    /// output (for library functions whose printed text is the result, such as a registry dump).
    class LibraryStdout {
    public:
        explicit LibraryStdout(Console& console);
        ~LibraryStdout();
        LibraryStdout(const LibraryStdout&) = delete;
        LibraryStdout& operator=(const LibraryStdout&) = delete;

    private:
        Console& console_;
        std::streambuf* savedBuffer_;
    };

private:
    void routeLibraryTo(int fd, bool discard);

    bool libraryShown_ = false;
    OwnedFd realOut_;
    OwnedFd realErr_;
    FdStreamBuf outBuf_;
    FdStreamBuf errBuf_;
    std::ostream out_;
    std::ostream err_;
    OwnedFd sink_;
    int libraryFd_ = -1;  // where descriptors 1 and 2 point, once routed
    std::streambuf* coutBuffer_;
    std::streambuf* cerrBuffer_;
    std::streambuf* clogBuffer_;
};

}  // namespace tvpolicy::cli
