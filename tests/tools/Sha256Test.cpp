// The digest that a results file names its policy by, against the published SHA-256 examples.

#include <gtest/gtest.h>

#include <string>

#include "report/Sha256.h"

namespace {

struct DigestCase {
    std::string message;
    std::string digest;
};

class Sha256Test : public testing::TestWithParam<DigestCase> {};

TEST_P(Sha256Test, MatchesTheExample) { EXPECT_EQ(tvpolicy::cli::sha256Hex(GetParam().message), GetParam().digest); }

INSTANTIATE_TEST_SUITE_P(
    Published, Sha256Test,
    testing::Values(
        DigestCase{"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        DigestCase{"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        DigestCase{"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
                   "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        DigestCase{"abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmnoijklmnopjklmnopqklmnopqrlmnopqrs"
                   "mnopqrstnopqrstu",
                   "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1"},
        DigestCase{std::string(1000000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
        // Bytes that are not text, a zero among them.
        DigestCase{std::string("\0\xff\x80", 3), "f742b965f156c10374bc23aea96e3a8aff8facd6fc079defeaa30219ad86f211"}));

}  // namespace
