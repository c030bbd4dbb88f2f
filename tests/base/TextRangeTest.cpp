#include "base/TextRange.h"

#include <gtest/gtest.h>

#include <limits>

namespace lexiform {
namespace {

TEST(TextRange, givesThePartOfATextThatItCovers) {
    EXPECT_EQ(substring("The cat", {4, 3}), "cat");
    EXPECT_EQ(substring("The cat", {7, 0}), "");
}

TEST(TextRangeDeathTest, stopsTheProgramWhenItReachesPastTheEnd) {
    EXPECT_DEATH((void)substring("cat", {1, 3}), "past the end");
    EXPECT_DEATH((void)substring("cat", {4, 0}), "past the end");
}

TEST(TextRangeDeathTest, isNotFooledByALengthThatWrapsAround) {
    EXPECT_DEATH((void)substring("cat", {2, std::numeric_limits<std::size_t>::max()}), "past the end");
}

} // namespace
} // namespace lexiform
