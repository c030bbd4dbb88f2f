#include "tools/train/language/LanguageTexts.h"
#include "tools/train/language/Fragments.h"
#include "tools/train/language/OwnSamples.h"
#include "tools/train/language/SerbianScript.h"

#include <gtest/gtest.h>

#include <set>

namespace lexiform::train {
namespace {

GoldSentence sentenceOf(const std::vector<std::string>& forms) {
    GoldSentence sentence;
    for (const std::string& form : forms) {
        sentence.tokens.emplace_back();
        sentence.tokens.back().form = form;
    }
    return sentence;
}

TEST(SentenceText, keepsTheSpacesOfASpacedCorpus) {
    GoldSentence sentence = sentenceOf({"don", "t", "."});
    sentence.tokens[0].spaceAfter = false;
    EXPECT_EQ(textOf(sentence, true), "dont .");
}

TEST(SentenceText, joinsPunctuationWhereACorpusHasNoSpaces) {
    EXPECT_EQ(textOf(sentenceOf({"Da", ",", "(", "možda", ")", "."}), false), "Da, (možda).");
}

TEST(SerbianScript, respellsLatinInCyrillic) {
    EXPECT_EQ(serbianCyrillic("Ljubav, Njegoš i džep."), "Љубав, Његош и џеп.");
}

TEST(Fragments, areWordsThatFollowEachOther) {
    Fragments fragments(3);
    const std::string text = "one two three four five six seven eight nine ten";
    for (int i = 0; i < 200; ++i)
        EXPECT_NE(text.find(fragments.fragmentOf(text)), std::string::npos);
}

TEST(Fragments, areTheSameFromTheSameSeed) {
    Fragments first(5), second(5);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(first.fragmentOf("a b c d e f g h"), second.fragmentOf("a b c d e f g h"));
}

TEST(OwnSamples, areWholeAndOneForEachLanguage) {
    const auto samples = readSamples(ownSamples());
    ASSERT_TRUE(samples.succeeded()) << samples.fault();
    std::set<std::string> languages;
    for (const OwnSample& sample : samples.value()) {
        EXPECT_GE(sample.words.size(), 30U) << sample.language;
        EXPECT_TRUE(languages.insert(sample.language).second) << sample.language;
    }
    EXPECT_GE(languages.size(), 50U);
}

} // namespace
} // namespace lexiform::train
