#include "base/checkedSum.h"

#include <gtest/gtest.h>

#include <limits>

namespace lexiform {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

TEST(CheckedSum, addsUpToTheLargestValue) {
    EXPECT_EQ(checkedSum(2, 3), 5);
    EXPECT_EQ(checkedSum(largest - 1, 1), largest);
}

TEST(CheckedSumDeathTest, stopsTheProgramInsteadOfWrappingAround) {
    EXPECT_DEATH((void)checkedSum(largest, 1), "overflows");
}

} // namespace
} // namespace lexiform
