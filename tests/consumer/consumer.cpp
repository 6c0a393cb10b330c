// A program that only knows the installed package.
#include <tvpolicy/tvpolicy.h>

#include <iostream>
#include <memory>

int main()
{
    std::cout << "version: " << TVPOLICY_VERSION << '\n';
    std::cout << "encoded: " << urlencode("a&b") << '\n';
    std::cout << "kinds: " << TaskFactory::getMap().size() << '\n';
    // The program of the umbrella header's opening comment.
    std::unique_ptr<Policy> policy(
        Policy::parseFromString("<policy name='p'><section name='s' primary='true'><true/></section></policy>", true));
    std::cout << "policy: " << (!policy->getFatalParseError() && policy->run() ? "passed" : "failed") << '\n';
    return 0;
}
