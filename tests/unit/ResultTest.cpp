#include <tvpolicy/base/Result.h>

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace {

using tvpolicy::Failure;
using tvpolicy::Result;

Result<int> half(int n)
{
    if (n % 2 != 0) {
        return Failure{std::to_string(n) + " is odd"};
    }
    return n / 2;
}

TEST(Result, ValueOrWhy)
{
    struct Case {
        int in;
        bool ok;
        int value;
        const char* why;
    };
    for (const Case& c : {Case{4, true, 2, ""}, Case{0, true, 0, ""}, Case{3, false, -1, "3 is odd"}}) {
        Result<int> r = half(c.in);
        EXPECT_EQ(r.ok(), c.ok) << c.in;
        EXPECT_EQ(static_cast<bool>(r), c.ok) << c.in;
        EXPECT_EQ(r.valueOr(-1), c.value) << c.in;
        EXPECT_EQ(r.error(), c.why) << c.in;
    }
}

// Success is not the value: a Result<bool> holding false is still a success.
TEST(Result, FalseIsAValue)
{
    Result<bool> no = false;
    ASSERT_TRUE(no);
    EXPECT_FALSE(*no);
    Result<bool> copied(no);  // a copy, not a bool made of the copy's success
    EXPECT_TRUE(copied);
    EXPECT_FALSE(*copied);
    Result<bool> failed = Failure{"unknown"};
    EXPECT_FALSE(failed);
    EXPECT_TRUE(failed.valueOr(true));
}

TEST(Result, HoldsMoveOnlyValuesAndHandsThemOver)
{
    Result<std::unique_ptr<std::string>> made = std::make_unique<std::string>("watch");
    ASSERT_TRUE(made);
    EXPECT_EQ(**made, "watch");
    std::unique_ptr<std::string> taken = std::move(made).value();
    EXPECT_EQ(*taken, "watch");
    Result<std::string> text = "a literal";
    EXPECT_EQ(text->size(), 9u);
}

TEST(Result, VoidIsSuccessOrWhy)
{
    Result<void> done;
    EXPECT_TRUE(done);
    EXPECT_EQ(done.error(), "");
    Result<void> refused = Failure{"disk full"};
    EXPECT_FALSE(refused);
    EXPECT_EQ(refused.error(), "disk full");
}

// A failure's code travels with it through either kind of Result; success has none.
TEST(Result, CarriesTheFailuresCode)
{
    Result<int> value = 7;
    Result<void> done;
    EXPECT_EQ(value.code(), 0);
    EXPECT_EQ(done.code(), 0);
    Result<int> missing = Failure{"the server answered 404", 404};
    Result<void> gone = Failure{"the server answered 410", 410};
    Result<int> plain = Failure{"no reason"};
    EXPECT_EQ(missing.code(), 404);
    EXPECT_EQ(gone.code(), 410);
    EXPECT_EQ(plain.code(), 0);
    EXPECT_EQ(Result<int>(missing).code(), 404);
}

}  // namespace
