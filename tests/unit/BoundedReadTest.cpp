// The one bounded reader: how each kind of file ends, and that the limit is exact.
#include <tvpolicy/base/OwnedFd.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <thread>

#include "support/TempDir.h"

namespace {

using tvpolicy::OwnedFd;
using tvpolicy::ReadEnd;

TEST(BoundedRead, RegularFilesEndAtTheirEndOrAtTheLimit)
{
    testing_support::TempDir dir;
    struct Row {
        std::string content;
        std::size_t limit;
        ReadEnd end;
        std::size_t kept;
    } rows[] = {
        {"", 10, ReadEnd::Complete, 0},
        {"0123456789", 10, ReadEnd::Complete, 10},
        {"0123456789A", 10, ReadEnd::OverLimit, 10},
        {std::string(300000, 'x'), 1 << 20, ReadEnd::Complete, 300000},
        {std::string(300000, 'x'), 4097, ReadEnd::OverLimit, 4097},
        {"abc", 0, ReadEnd::OverLimit, 0},
    };
    for (const auto& row : rows) {
        OwnedFd fd(::open(dir.write("f", row.content).c_str(), O_RDONLY | O_CLOEXEC));
        ASSERT_TRUE(fd);
        std::string text = "left over";
        EXPECT_EQ(tvpolicy::readBounded(fd.get(), row.limit, text), row.end) << row.content.size();
        EXPECT_EQ(text, row.content.substr(0, row.kept)) << row.content.size();
    }
}

TEST(BoundedReadPipes, AStreamIsReadInPiecesToItsEndOrTheLimit)
{
    for (std::size_t limit : {std::size_t(100), std::size_t(2) << 20}) {
        int ends[2];
        ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        OwnedFd readEnd(ends[0]);
        OwnedFd writeEnd(ends[1]);
        const std::string sent(1 << 20, 'p');
        std::thread writer([&] {
            std::size_t at = 0;
            while (at < sent.size()) {
                ssize_t put = ::write(writeEnd.get(), sent.data() + at, sent.size() - at);
                if (put <= 0) {
                    break;
                }
                at += static_cast<std::size_t>(put);
            }
            writeEnd.reset();
        });
        std::string text;
        ReadEnd end = tvpolicy::readBounded(readEnd.get(), limit, text);
        // What is past the limit is drained, so that the writer finishes.
        char rest[65536];
        while (::read(readEnd.get(), rest, sizeof rest) > 0) {
        }
        writer.join();
        EXPECT_EQ(end, limit < sent.size() ? ReadEnd::OverLimit : ReadEnd::Complete);
        EXPECT_EQ(text, sent.substr(0, limit));
    }
}

TEST(BoundedReadPipes, AnEmptyFifoWithoutBlockingAndABadDescriptorSayWhy)
{
    testing_support::TempDir dir;
    std::string fifo = (dir.path() / "fifo").string();
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    OwnedFd reader(::open(fifo.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    OwnedFd writer(::open(fifo.c_str(), O_WRONLY | O_CLOEXEC));
    ASSERT_TRUE(reader && writer);
    std::string text;
    EXPECT_EQ(tvpolicy::readBounded(reader.get(), 10, text), ReadEnd::WouldBlock);
    EXPECT_EQ(tvpolicy::readBounded(-1, 10, text), ReadEnd::Failed);
    EXPECT_EQ(errno, EBADF);
}

}  // namespace
