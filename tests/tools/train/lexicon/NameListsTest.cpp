#include "tools/train/lexicon/NameLists.h"
#include "tests/tools/train/TextFile.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using namespace linguistics;

int listsOf(const Lexicon& lexicon, std::string_view form) {
    const auto found = lexicon.find(form);
    return found == lexicon.end() ? 0 : found->second.lists;
}

TEST(NameLists, addTheGazetteersButCommonWordsAndNamesOfSeveralWords) {
    const TextFolder folder("addTheGazetteers");
    folder.write("dist.female.first", "MARY 2.6 2.6 1\nMAY 0.1 0.2 2\n");
    folder.write("dist.male.first", "JOHN 3.2 3.2 1\n");
    folder.write("dist.all.last", "SMITH 1.0 1.0 1\n");
    folder.write("common-forenames-by-country.csv",
                 "Country,Country Group,Region,Population,Note,Year,Romanization,Index,Name Group,Gender,"
                 "Localized Name,Romanized Name\n"
                 "RU,1,,,,2018,N,1,N-RU-1-F-1,F,Анна,Anna\n");
    folder.write("common-surnames-by-country.csv",
                 "Country,Rank,Index,Name Group,Localized Name,Romanized Name,Count,Percent\n"
                 "JP,1,1,JP-1,佐藤,Satō,,\n");
    folder.write("world-cities.csv",
                 "name,country,subcountry,geonameid\n"
                 "Lyon,France,Auvergne,1\nLos Angeles,United States,California,2\nNice,France,Provence,3\n");
    LexiconBuilder builder;
    ASSERT_FALSE(addGazetteers(folder.path(), {"may", "nice"}, true, builder));
    const Lexicon lexicon = builder.build();
    EXPECT_EQ(listsOf(lexicon, "mary"), givenNames);
    EXPECT_EQ(listsOf(lexicon, "may"), 0);
    EXPECT_EQ(listsOf(lexicon, "анна"), givenNames);
    EXPECT_EQ(listsOf(lexicon, "satō"), familyNames);
    EXPECT_EQ(listsOf(lexicon, "smith"), familyNames);
    EXPECT_EQ(listsOf(lexicon, "lyon"), cityNames);
    EXPECT_EQ(listsOf(lexicon, "nice"), 0);
    EXPECT_EQ(listsOf(lexicon, "los angeles"), 0);
    EXPECT_EQ(listsOf(lexicon, "california"), countryNames);
}

TEST(NameLists, sayWhichFileIsMissing) {
    LexiconBuilder builder;
    EXPECT_TRUE(addGazetteers("/nonexistent", {}, false, builder));
}

} // namespace
} // namespace lexiform::train
