#include "base/WebAddress.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

TEST(WebAddress, isKeptAsItWasWritten) {
    const char* const text = "https://Maker.example:8443/a%20b/?q=1&r=[2]#end";
    const auto address = WebAddress::parse(text);
    ASSERT_TRUE(address);
    EXPECT_EQ(address->string(), text);
}

TEST(WebAddress, isNoTextWithACharacterThatMustBeEscaped) {
    for (const char* text : {"", "https://maker.example/a b", "https://maker.example/é",
                             "https://maker.example/<x>", "https://maker.example/\n", "a\\b", "{x}", "a|b"})
        EXPECT_FALSE(WebAddress::parse(text)) << text;
}

TEST(WebAddress, isNoTextWithHalfAnEscapeOrTwoFragments) {
    for (const char* text : {"https://maker.example/%", "https://maker.example/%2", "x%zz", "x%2g", "a#b#c"})
        EXPECT_FALSE(WebAddress::parse(text)) << text;
}

} // namespace
} // namespace lexiform
