#include "base/StringPool.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform {
namespace {

TEST(StringPool, keepsEachDistinctStringOnce) {
    StringPool pool;
    EXPECT_EQ(pool.numberOf("the"), 0U);
    EXPECT_EQ(pool.numberOf("cat"), 1U);
    EXPECT_EQ(pool.numberOf("the"), 0U);
    EXPECT_EQ(pool.size(), 2U);
    EXPECT_EQ(pool[1], "cat");
}

TEST(StringPool, keepsItsStringsWhereTheyAre) {
    StringPool pool;
    const std::string& first = pool[pool.numberOf("first")];
    for (int i = 0; i < 10'000; ++i)
        (void)pool.numberOf(std::to_string(i));
    EXPECT_EQ(&pool[0], &first);
    EXPECT_EQ(first, "first");
}

TEST(StringPool, isEmptyOnceItIsCleared) {
    StringPool pool;
    (void)pool.numberOf("the");
    pool.clear();
    EXPECT_EQ(pool.size(), 0U);
    EXPECT_EQ(pool.numberOf("cat"), 0U);
    EXPECT_EQ(pool[0], "cat");
}

} // namespace
} // namespace lexiform
