// Columns that text takes on a terminal, and cutting text to a width without splitting a
// character.

#include <gtest/gtest.h>

#include <string>

#include "io/TerminalText.h"

namespace {

struct WidthCase {
    const char* what;
    std::string text;
    std::size_t columns;
};

class DisplayWidthTest : public testing::TestWithParam<WidthCase> {};

TEST_P(DisplayWidthTest, CountsColumns)
{
    EXPECT_EQ(tvpolicy::cli::displayWidth(GetParam().text), GetParam().columns) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Text, DisplayWidthTest,
    testing::Values(
        WidthCase{"ASCII", "policy", 6}, WidthCase{"Latin with a precomposed accent", "caf\u00e9", 4},
        WidthCase{"a combining acute accent adds nothing", "cafe\u0301", 4},
        WidthCase{"a combining mark outside the common block", "a\u0e31", 1}, WidthCase{"Han", "\u6f22\u5b57", 4},
        WidthCase{"Hangul syllables", "\ud55c\uae00", 4}, WidthCase{"full-width Latin", "\uff21\uff22", 4},
        WidthCase{"half-width katakana", "\uff76\uff85", 2}, WidthCase{"emoji in the faces block", "\U0001F600", 2},
        WidthCase{"emoji outside the old tables", "\u231a\U0001F680\U0001FA90", 6},
        WidthCase{"a symbol shown as text", "\u2605", 1}, WidthCase{"zero-width joiner and space", "a\u200d\u200bb", 2},
        WidthCase{"control characters", "a\tb\x7f", 2}, WidthCase{"a byte that is not UTF-8 counts one", "a\xffz", 3},
        WidthCase{"a cut-off sequence counts a column a byte", "a\xe6\xbc", 3}));

struct FitCase {
    std::string text;
    std::size_t columns;
    std::string fitted;
};

class FitWidthTest : public testing::TestWithParam<FitCase> {};

TEST_P(FitWidthTest, NeverSplitsACharacter)
{
    EXPECT_EQ(tvpolicy::cli::fitWidth(GetParam().text, GetParam().columns), GetParam().fitted);
}

INSTANTIATE_TEST_SUITE_P(Text, FitWidthTest,
                         testing::Values(FitCase{"abcdef", 4, "abcd"}, FitCase{"ab", 10, "ab"},
                                         // A wide character that does not fit whole stays out.
                                         FitCase{"a\u6f22b", 2, "a"}, FitCase{"\U0001F600\U0001F600", 3, "\U0001F600"},
                                         // A combining mark stays with its letter at the edge.
                                         FitCase{"e\u0301x", 1, "e\u0301"}));

}  // namespace
