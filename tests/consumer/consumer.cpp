// A program that only knows the installed package.
#include <tvpolicy/tvpolicy.h>

#include <iostream>

int main()
{
    std::cout << "version: " << TVPOLICY_VERSION << '\n';
    std::cout << "encoded: " << urlencode("a&b") << '\n';
    std::cout << "kinds: " << TaskFactory::getMap().size() << '\n';
    return 0;
}
