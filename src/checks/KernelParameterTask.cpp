// KernelParameter: a kernel parameter's value, blanks folded and trimmed, equals the one given.
#include <tvpolicy/host/PostureProbe.h>

#include "checks/PostureTask.h"

namespace tvpolicy::checks {

namespace {

// Runs of blanks, tabs and line ends become one blank; both ends are trimmed.
std::string folded(const std::string& text)
{
    std::string result;
    bool blank = false;
    for (char c : text) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f') {
            blank = !result.empty();
            continue;
        }
        if (blank) {
            result += ' ';
            blank = false;
        }
        result += c;
    }
    return result;
}

class KernelParameterTask final : public PostureTask {
public:
    std::string getType() override { return "KernelParameterTask"; }

private:
    Outcome check() override
    {
        std::string name = attribute("name");
        auto value = currentPosture().kernelParameter(name);
        if (!value) {
            return unknown(name + ": " + value.error());
        }
        std::string found = folded(*value);
        bool passed = found == attribute("value");
        return {passed, name + " = " + found + (passed ? "" : ", not " + attribute("value"))};
    }
};

}  // namespace

Task* createKernelParameter() { return new KernelParameterTask; }

}  // namespace tvpolicy::checks
