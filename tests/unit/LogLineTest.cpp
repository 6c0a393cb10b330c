#include "base/LogLine.h"

#include <tvpolicy/policy/Policy.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <ostream>
#include <regex>
#include <stdexcept>
#include <streambuf>
#include <string>

#include "support/CaptureStream.h"

namespace {

// Keeps what it is given and counts the writes and flushes that reach it.
class Recorder : public std::streambuf {
public:
    std::string text;
    int writes = 0;
    int flushes = 0;

protected:
    int_type overflow(int_type c) override
    {
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            ++writes;
            text.push_back(traits_type::to_char_type(c));
        }
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* data, std::streamsize count) override
    {
        ++writes;
        text.append(data, static_cast<std::size_t>(count));
        return count;
    }
    int sync() override
    {
        ++flushes;
        return 0;
    }
};

const std::regex stamped(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC :: (.*)\n)");

TEST(LogLine, AppendsPiecesAsAStreamWouldAfterOneTimestamp)
{
    struct Case {
        std::function<void(tvi::LogLine&)> write;
        std::string text;
    };
    const Case cases[] = {
        {[](tvi::LogLine& l) { l << "name = " << std::string("a") << " value = " << 'b'; }, "name = a value = b"},
        {[](tvi::LogLine& l) { l << "err = " << -7 << ' ' << 3000000000U << ' ' << 42L; }, "err = -7 3000000000 42"},
        {[](tvi::LogLine& l) { l << 1.5 << ' ' << 0.25F << ' ' << true; }, "1.5 0.25 1"},
        {[](tvi::LogLine& l) { l << static_cast<const char*>(nullptr) << "" << std::string_view("x"); }, "x"},
    };
    for (const Case& c : cases) {
        Recorder sink;
        std::ostream stream(&sink);
        {
            tvi::LogLine line(stream);
            c.write(line);
        }
        std::smatch match;
        ASSERT_TRUE(std::regex_match(sink.text, match, stamped)) << sink.text;
        EXPECT_EQ(match[1].str(), c.text);
        EXPECT_EQ(sink.writes, 1) << "a line is handed over in one write";
        EXPECT_EQ(sink.flushes, 1) << "outside a batch a line is flushed as std::endl would";
    }
}

TEST(LogLine, DiscardingStreamGetsNothing)
{
    std::ostream noBuffer(nullptr);
    tvi::LogLine(noBuffer) << "lost" << 1;
    Recorder sink;
    std::ostream failed(&sink);
    failed.setstate(std::ios::failbit);
    tvi::LogLine(failed) << "lost";
    EXPECT_EQ(sink.text, "");
}

TEST(LogBatch, GathersLinesUntilItEndsThenFlushesOnce)
{
    Recorder sink;
    std::ostream stream(&sink);
    {
        tvi::LogBatch batch;
        {
            tvi::LogBatch nested;
            for (int i = 0; i < 1000; ++i) {
                tvi::LogLine(stream) << "line " << i;
            }
        }
        EXPECT_EQ(sink.text, "") << "lines went out before the outer batch ended";
        EXPECT_EQ(sink.flushes, 0);
    }
    EXPECT_EQ(std::count(sink.text.begin(), sink.text.end(), '\n'), 1000);
    EXPECT_NE(sink.text.find("line 0\n"), std::string::npos);
    EXPECT_LT(sink.text.find("line 998\n"), sink.text.find("line 999\n"));
    EXPECT_LE(sink.writes, 2);
    EXPECT_EQ(sink.flushes, 1);
}

TEST(LogBatch, KeepsTheOrderAcrossStreamsLongPiecesAndNestedLines)
{
    Recorder sink;
    std::ostream first(&sink), second(&sink);
    std::string longPiece(200 * 1024, 'x');
    auto inner = [&] {
        tvi::LogLine(first) << "inner";
        return std::string("outer");
    };
    {
        tvi::LogBatch batch;
        tvi::LogLine(first) << "one";
        tvi::LogLine(second) << "two";
        tvi::LogLine(first) << "three " << longPiece << " end";
        tvi::LogLine(first) << inner();
    }
    std::string text = std::regex_replace(sink.text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC :: )"), "");
    EXPECT_EQ(text, "one\ntwo\nthree " + longPiece + " end\ninner\nouter\n");
}

TEST(LogBatch, WritesWhatItGatheredWhenAnExceptionLeaves)
{
    Recorder sink;
    std::ostream stream(&sink);
    try {
        tvi::LogBatch batch;
        tvi::LogLine(stream) << "before the throw";
        throw std::runtime_error("out");
    } catch (const std::runtime_error&) {
    }
    EXPECT_NE(sink.text.find("before the throw\n"), std::string::npos);
    EXPECT_EQ(sink.flushes, 1);
}

// A parse logs several lines per element; they reach the log in a few large writes and one
// flush, not one flush per line, and every line is there.
TEST(LogBatch, PolicyParseWritesItsLogInLargeWrites)
{
    std::string xml = "<policy name='p'>\n";
    for (int i = 0; i < 300; ++i) {
        xml += "  <section name='s" + std::to_string(i) + "' primary='true'><true/></section>\n";
    }
    xml += "</policy>\n";
    Recorder sink;
    std::streambuf* saved = std::clog.rdbuf(&sink);
    std::unique_ptr<Policy> policy(Policy::parseFromString(xml, true));
    std::clog.rdbuf(saved);
    ASSERT_FALSE(policy->getFatalParseError());
    auto lines = testing_support::logMessages(sink.text);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "startElement qname = section"), 300);
    EXPECT_LE(sink.writes, 4);
    EXPECT_EQ(sink.flushes, 1);
}

}  // namespace
