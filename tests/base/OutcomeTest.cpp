#include "base/Outcome.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace lexiform {
namespace {

struct Fault {
    int line = 0;
};

TEST(Outcome, holdsAValue) {
    const Outcome<std::string, Fault> outcome{std::string("read")};
    EXPECT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.value(), "read");
}

TEST(Outcome, holdsAFault) {
    const Outcome<std::string, Fault> outcome{Fault{7}};
    EXPECT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault().line, 7);
}

TEST(Outcome, givesUpAValueThatCannotBeCopied) {
    Outcome<std::unique_ptr<int>, Fault> outcome{std::make_unique<int>(3)};
    const std::unique_ptr<int> value = std::move(outcome).value();
    EXPECT_EQ(*value, 3);
}

TEST(OutcomeDeathTest, stopsTheProgramWhenTheMissingSideIsRead) {
    const Outcome<Done, Fault> failed{Fault{1}};
    const Outcome<Done, Fault> succeeded{Done{}};
    EXPECT_DEATH((void)failed.value(), "failed outcome");
    EXPECT_DEATH((void)succeeded.fault(), "successful outcome");
}

} // namespace
} // namespace lexiform
