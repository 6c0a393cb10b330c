#pragma once

#include <cstddef>
#include <string>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/host/PostureProbe.h>

namespace tvpolicy::probe {

/// Reads at most `limit` bytes of the file at `path` (relative to `dirFd`) into `text`. False
/// when it cannot be opened or read (errno tells why), for instance because its process has
/// just ended. A FIFO or device put in a file's place gives what it has at once instead of
/// blocking.
bool readAt(int dirFd, const char* path, std::size_t limit, std::string& text);

/// Like readAt from the current directory: the text, or why it could not be read ("No such
/// file or directory").
Result<std::string> readText(const std::string& path, std::size_t limit);

/// Owner, group and mode of the file at `path` (a path of this machine, links followed), with
/// the names the user and group databases give.
PostureProbe::Fact<PostureProbe::FileStatus> statFile(const std::string& path);

}  // namespace tvpolicy::probe
