// FileContent: some line of a file matches a PCRE2 pattern (or, with absent="true", none does).
#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <memory>

#include <tvpolicy/host/HostProbe.h>

#include "checks/PostureTask.h"
#include "host/probe/PosixFiles.h"

namespace tvpolicy::checks {

namespace {

constexpr std::size_t fileLimit = 16u << 20;
// Enough for any sane pattern on a line of a configuration file, and a bound on the hostile.
constexpr std::uint32_t matchLimit = 1'000'000;
constexpr std::uint32_t depthLimit = 10'000;

struct CodeFree {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
};
struct MatchDataFree {
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};
struct MatchContextFree {
    void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
};
using Code = std::unique_ptr<pcre2_code, CodeFree>;

std::string errorText(int code)
{
    PCRE2_UCHAR buffer[256];
    int length = pcre2_get_error_message(code, buffer, sizeof buffer);
    return length > 0 ? std::string(reinterpret_cast<const char*>(buffer), static_cast<std::size_t>(length))
                      : "error " + std::to_string(code);
}

Code compile(const std::string& pattern, std::string& problem)
{
    int error = 0;
    PCRE2_SIZE offset = 0;
    Code code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(), 0, &error, &offset, nullptr));
    if (!code) {
        problem = "pattern does not compile: " + errorText(error) + " at offset " + std::to_string(offset);
    }
    return code;
}

class FileContentTask final : public PostureTask {
public:
    std::string getType() override { return "FileContentTask"; }

private:
    Outcome check() override
    {
        std::string problem;
        Code code = compile(attribute("pattern"), problem);
        if (!code) {
            return unknown(problem);
        }
        std::string path = attribute("path");
        auto read = probe::readText(currentHost().systemPath(path), fileLimit + 1);
        if (!read) {
            return unknown(path + " cannot be read: " + read.error());
        }
        const std::string& text = *read;
        if (text.size() > fileLimit) {
            return unknown(path + " is larger than 16 MB");
        }
        std::unique_ptr<pcre2_match_data, MatchDataFree> data(
            pcre2_match_data_create_from_pattern(code.get(), nullptr));
        std::unique_ptr<pcre2_match_context, MatchContextFree> context(pcre2_match_context_create(nullptr));
        if (!data || !context) {
            return unknown("out of memory for matching");
        }
        pcre2_set_match_limit(context.get(), matchLimit);
        pcre2_set_depth_limit(context.get(), depthLimit);
        bool absent = flag("absent");
        std::size_t number = 0;
        for (std::size_t start = 0; start < text.size();) {
            std::size_t end = text.find('\n', start);
            std::size_t next = end == std::string::npos ? text.size() : end + 1;
            std::size_t length = (end == std::string::npos ? text.size() : end) - start;
            if (length > 0 && text[start + length - 1] == '\r') {
                --length;
            }
            ++number;
            int result = pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(text.data() + start), length, 0, 0,
                                     data.get(), context.get());
            if (result >= 0) {
                std::string line = text.substr(start, length);
                return {!absent, path + " line " + std::to_string(number) + " matches: " + line};
            }
            if (result != PCRE2_ERROR_NOMATCH) {
                return unknown(path + " line " + std::to_string(number) + ": " + errorText(result));
            }
            start = next;
        }
        return {absent, "no line of " + path + " matches"};
    }
};

}  // namespace

std::string patternProblem(const std::string& pattern)
{
    std::string problem;
    compile(pattern, problem);
    return problem;
}

Task* createFileContent() { return new FileContentTask; }

}  // namespace tvpolicy::checks
