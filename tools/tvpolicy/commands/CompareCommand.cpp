#include <cstdlib>
#include <memory>
#include <string>

#include <tvpolicy/checks/DelimVersion.h>

#include "commands/Command.h"

namespace tvpolicy::cli {

namespace {

struct CompareOptions {
    std::string system;
    std::string op;
    std::string requested;
    std::string delim;  // what a version check without "delim" uses
    bool normalize = false;
    std::string order;
};

CommandAction setupCompare(CLI::App& app)
{
    auto options = std::make_shared<CompareOptions>();
    app.add_option("SYSTEM", options->system, "The version found on the computer")->required();
    app.add_option("OPERATOR", options->op, "gt, gte, eq, lte or lt (any other text means gte)")->required();
    app.add_option("REQUESTED", options->requested, "The version the policy asks for")->required();
    app.add_option("--delim", options->delim,
                   "Delimiter characters, each one splitting words. Default: none, as in a policy's version "
                   "check without a delim attribute (then the versions are compared as whole words); pass "
                   "--delim . for dotted versions");
    app.add_flag("--normalize", options->normalize, "Keep only digits and delimiters of SYSTEM before comparing");
    CLI::Option* order =
        app.add_option("--order", options->order, "Rearrange SYSTEM's words first, by index: \"2 1 0\"");
    return [options, order](Console& console) {
        std::string op = options->op;
        if (DelimVersion::parseCmpOper(op) == DelimVersion::gte && op != "gte") {
            console.err() << "unknown operator \"" << op << "\": compared as gte\n";
        }
        if (options->delim.empty() && options->system.find('.') != std::string::npos &&
            options->requested.find('.') != std::string::npos) {
            console.err() << "tvpolicy compare: warning: without --delim each version is read as one number up to "
                             "its first non-digit ("
                          << std::strtoll(options->system.c_str(), nullptr, 10) << " against "
                          << std::strtoll(options->requested.c_str(), nullptr, 10)
                          << "), as a check without delim reads it; pass --delim . for dotted versions\n";
        }
        DelimVersion version(op);
        version.setNormalize(options->normalize);
        bool result = order->count() > 0 ? version.versionAtLeastReorder(options->requested, options->delim,
                                                                         options->system, options->order)
                                         : version.versionAtLeast(options->requested, options->delim, options->system);
        console.out() << (result ? "true" : "false") << '\n';
        return result ? exitPassed : exitFailed;
    };
}

const bool registered = registerCommand(
    {"compare", "Compare a system version with a requested one as a policy's version checks do", 60, &setupCompare});

}  // namespace
}  // namespace tvpolicy::cli
