#include "app/plist/limits.h"
#include "app/plist/readPropertyList.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace lexiform {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using namespace std::string_view_literals;

TEST(TextList, readsDictionariesArraysStringsAndData) {
    EXPECT_EQ(
        readPropertyList("{ name = \"a b\"; 'list' = ( one, <0fbd 77> ); empty = {}; }"),
        (PropertyList{Dictionary{
            {"name", PropertyList{"a b"}},
            {"list", PropertyList{Array{PropertyList{"one"}, PropertyList{PropertyData{"\x0F\xBD\x77"}}}}},
            {"empty", PropertyList{Dictionary{}}}}}));
    EXPECT_EQ(readPropertyList("()"), PropertyList{Array{}});
}

TEST(TextList, readsWordsOfLettersDigitsAndSomeMarks) {
    EXPECT_EQ(readPropertyList("https://a-b.org:80/_c$"), PropertyList{"https://a-b.org:80/_c$"});
    EXPECT_EQ(readPropertyList("1.5"), PropertyList{"1.5"});
    EXPECT_FALSE(readPropertyList("a+b"));
    EXPECT_FALSE(readPropertyList("\xC3\xA9"));
}

TEST(TextList, takesASingleWordOrStringForAList) {
    EXPECT_EQ(readPropertyList(" word\n"), PropertyList{"word"});
    EXPECT_EQ(readPropertyList("\"two words\""), PropertyList{"two words"});
    EXPECT_FALSE(readPropertyList("two words"));
    EXPECT_FALSE(readPropertyList("No list."));
}

TEST(TextList, readsEscapes) {
    EXPECT_EQ(readPropertyList(R"("\U00e9\u\n\t\"\\\'\q")"), PropertyList{"\xC3\xA9u\n\t\"\\'q"});
    EXPECT_EQ(readPropertyList("'\\a\\b\\f\\r\\v\\\n\"'"), PropertyList{"\a\b\f\r\v\n\""});
    EXPECT_EQ(readPropertyList(R"("\Ue9 \U41g \uD83D")"), PropertyList{"\xC3\xA9 Ag uD83D"});
    EXPECT_EQ(readPropertyList(R"("\101\0601\7z")"), PropertyList{"A01\az"});
}

TEST(TextList, readsOctalNumbersInTheirOwnCharacterSet) {
    EXPECT_EQ(readPropertyList(R"("\335\252\377")"), PropertyList{"\xC3\xA9\xE2\x80\x9C\xEF\xBF\xBD"});
    EXPECT_FALSE(readPropertyList(R"("\400")"));
}

TEST(TextList, joinsTheHalvesOfACharacter) {
    EXPECT_EQ(readPropertyList(R"("\UD83D\UDE00")"), PropertyList{"\xF0\x9F\x98\x80"});
    for (const auto* const half : {R"("\UD83D")", R"("\UDE00")", R"("\UD83Da\UDE00")", R"("\UD83D\UD83D")"})
        EXPECT_FALSE(readPropertyList(half)) << half;
}

TEST(TextList, skipsSpaceAndComments) {
    EXPECT_EQ(readPropertyList("// one\r/* two * / */ (\va\xE2\x80\xA8,/**/b // end"
                               "\n,) // three"),
              (PropertyList{Array{PropertyList{"a"}, PropertyList{"b"}}}));
    EXPECT_EQ(readPropertyList("a//b"), PropertyList{"a//b"});
}

TEST(TextList, letsTheLastOfEqualKeysWin) {
    EXPECT_EQ(readPropertyList("{a = b; a = c;}"), (PropertyList{Dictionary{{"a", PropertyList{"c"}}}}));
}

TEST(TextList, readsDataThatLooksLikeMarkup) {
    EXPECT_EQ(readPropertyList("<>"), (PropertyList{PropertyData{}}));
    EXPECT_EQ(readPropertyList("<dA\n ta >"), std::nullopt);
    EXPECT_EQ(readPropertyList(" <da d0>"), (PropertyList{PropertyData{"\xDA\xD0"}}));
}

TEST(TextList, readsEveryUsualEncoding) {
    EXPECT_EQ(readPropertyList("\xEF\xBB\xBF(a)"), (PropertyList{Array{PropertyList{"a"}}}));
    EXPECT_EQ(readPropertyList("\xFE\xFF\0(\0)"sv), PropertyList{Array{}});
    EXPECT_EQ(readPropertyList("\xFF\xFE(\0)\0"sv), PropertyList{Array{}});
    EXPECT_EQ(readPropertyList("\"\xC3\xA9\""), PropertyList{"\xC3\xA9"});
    EXPECT_FALSE(readPropertyList("\"\xE9\""));
}

TEST(TextList, refusesWhatIsNotWellFormed) {
    for (const auto* const wrong :
         {"",       " \n",  "// a",   "(",     ")",       "(a",       "(a b)",  "(,)",   "(a,,b)",
          "(a;)",   "{",    "{a}",    "{a;}",  "{a=}",    "{a=b}",    "{a=b,}", "{=b;}", "{(a)=b;}",
          "a = b;", "\"a",  "'a\"",   "\"a\\", "\"\\U\"", "\"\\Ug\"", "<0>",    "<0g>",  "<00",
          "<*I5>",  "/* a", "a /* b", "() ()", "(a) b",   "{} ;",     "(a]"})
        EXPECT_FALSE(readPropertyList(wrong)) << wrong;
}

TEST(TextList, refusesContainersThatAreTooDeep) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '(') + std::string(depth, ')'); };
    EXPECT_TRUE(readPropertyList(nested(plist::deepestContainer)));
    EXPECT_FALSE(readPropertyList(nested(plist::deepestContainer + 1)));
    EXPECT_FALSE(readPropertyList(std::string(plist::mostBytes, '(')));
    EXPECT_FALSE(readPropertyList(std::string(plist::mostBytes, '{')));
}

TEST(TextList, refusesMoreObjectsThanItsLimit) {
    const auto words = [](std::size_t count) {
        std::string list = "(";
        for (std::size_t i = 0; i < count; ++i)
            list += "a,";
        return list + ")";
    };
    EXPECT_TRUE(readPropertyList(words(plist::mostObjects - 1)));
    EXPECT_FALSE(readPropertyList(words(plist::mostObjects)));
}

} // namespace
} // namespace lexiform
