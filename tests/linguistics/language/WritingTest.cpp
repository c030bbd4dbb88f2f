#include "linguistics/language/Writing.h"

#include <gtest/gtest.h>

namespace lexiform::linguistics {
namespace {

TEST(Writing, tellsTheLanguageThatHasAScriptToItself) {
    EXPECT_EQ(onlyLanguageOf("Hang"), "ko");
    EXPECT_EQ(onlyLanguageOf("Hani"), "zh");
    EXPECT_EQ(onlyLanguageOf("Grek"), "el");
}

TEST(Writing, tellsNoLanguageOfAScriptThatSeveralShareOrThatIsNotKnown) {
    EXPECT_EQ(onlyLanguageOf("Latn"), "");
    EXPECT_EQ(onlyLanguageOf("Cyrl"), "");
    EXPECT_EQ(onlyLanguageOf("Goth"), "");
    EXPECT_EQ(onlyLanguageOf(std::string_view()), "");
}

} // namespace
} // namespace lexiform::linguistics
