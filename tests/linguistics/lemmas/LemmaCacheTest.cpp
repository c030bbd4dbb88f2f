#include "linguistics/lemmas/LemmaCache.h"

#include "tests/linguistics/lemmas/LemmaModelBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::linguistics {
namespace {

/// A model that takes the s from nouns, keeps the capitals of names, and of "left" before "the" makes
/// "leave".
class LemmaCacheTest : public testing::Test {
protected:
    LemmaCacheTest() {
        bytes_.addRule(false, 0, 0, 0, "", "");
        bytes_.addRule(false, 0, 0, 1, "", "");
        bytes_.addRule(true, 0, 0, 0, "", "leave");
        const LemmaTraits s = traits("s"), left = traits("left"), the = traits("the"), name = traits("Name");
        forEachRuleFeature(s, UniversalPos::NOUN, [&, n = 0](std::uint64_t feature) mutable {
            // The first three are of the whole word and its capitals; then comes its last letter.
            if (n++ == 3) bytes_.addWeight(feature, firstRuleLabel + 1, 9);
        });
        forEachCasingFeature(
            name, UniversalPos::PROPN, WordPlace::within, [&, n = 0](std::uint64_t feature) mutable {
                if (n++ == 1) bytes_.addWeight(feature, static_cast<std::size_t>(LemmaCasing::kept), 9);
            });
        bytes_.addWeight(neighbourMarkOf(left, UniversalPos::VERB), neighbourMark, 1);
        const LemmaNeighbour after{the.form, the.suffixes[1],
                                   static_cast<std::uint64_t>(UniversalPos::DET) + 1};
        forEachNeighbourFeature(left, UniversalPos::VERB, {}, after,
                                [&, n = 0](std::uint64_t feature) mutable {
                                    if (n++ == 1) bytes_.addWeight(feature, firstRuleLabel + 2, 9);
                                });
        words_ = bytes_.file();
        const auto file = ModelFile::over(std::as_bytes(std::span(words_)));
        const auto model = LemmaModel::over(file.value());
        model_.emplace(model.value());
    }

    static LemmaTraits traits(std::string_view form) {
        return lemmaTraitsOf(FoldedWord(form, CaseRules::standard));
    }

    std::vector<std::string> lemmas(LemmaCache& cache, const std::vector<TaggedWord>& sentence) {
        std::vector<std::string_view> views(sentence.size());
        cache.lemmatize(sentence, views);
        return {views.begin(), views.end()};
    }

    LemmaModelBytes bytes_;
    std::vector<std::uint64_t> words_;
    std::optional<LemmaModel> model_;
};

using Lemmas = std::vector<std::string>;

TEST_F(LemmaCacheTest, givesLemmasByTagAndPlace) {
    LemmaCache cache(*model_);
    EXPECT_EQ(
        lemmas(cache,
               {{"Cats", UniversalPos::NOUN}, {"cats", UniversalPos::VERB}, {"Ross", UniversalPos::PROPN}}),
        (Lemmas{"cat", "cats", "Ross"}));
}

TEST_F(LemmaCacheTest, looksAtNeighboursEachTimeAnew) {
    LemmaCache cache(*model_);
    const std::vector<TaggedWord> leave = {{"left", UniversalPos::VERB}, {"the", UniversalPos::DET}};
    const std::vector<TaggedWord> other = {{"left", UniversalPos::VERB}, {"a", UniversalPos::DET}};
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(lemmas(cache, leave), (Lemmas{"leave", "the"}));
        EXPECT_EQ(lemmas(cache, other), (Lemmas{"left", "a"}));
    }
}

TEST_F(LemmaCacheTest, answersAsTheLemmatizerDoesWithoutIt) {
    LemmaCache cache(*model_);
    Lemmatizer lemmatizer(*model_);
    const std::vector<TaggedWord> sentence = {{"Dogs", UniversalPos::NOUN},   {"left", UniversalPos::VERB},
                                              {"the", UniversalPos::DET},     {"-", UniversalPos::PUNCT},
                                              {"HOUSES", UniversalPos::NOUN}, {"LEFT", UniversalPos::VERB},
                                              {"Dogs", UniversalPos::NOUN}};
    for (int time = 0; time < 2; ++time) {
        const Lemmas cached = lemmas(cache, sentence);
        for (std::size_t at = 0; at < sentence.size(); ++at)
            EXPECT_EQ(cached[at], lemmatizer.lemmaOf(sentence, at).lemma) << at;
    }
}

TEST_F(LemmaCacheTest, leavesHostileWordsAsTheyAre) {
    LemmaCache cache(*model_);
    for (const std::string& word :
         {std::string(), std::string("\xFFs"), std::string("\xED\xA0\x80s"), std::string(100'000, 's'),
          std::string(30'000, '\xC3'), std::string(1, '\0')})
        EXPECT_EQ(lemmas(cache, {{word, UniversalPos::NOUN}}), Lemmas{word});
}

TEST_F(LemmaCacheTest, neverGivesAnEmptyLemma) {
    LemmaCache cache(*model_);
    EXPECT_EQ(lemmas(cache, {{"s", UniversalPos::NOUN}}), Lemmas{"s"});
}

TEST_F(LemmaCacheTest, takesWordsOfEveryScript) {
    LemmaCache cache(*model_);
    for (const char* word : {"слово", "λέξη", "מילה", "كلمة", "शब्द", "คำ", "字", "ことば", "낱말", "სიტყვა",
                             "👩‍👩‍👧"})
        EXPECT_EQ(lemmas(cache, {{word, UniversalPos::NOUN}}), Lemmas{word});
}

TEST_F(LemmaCacheTest, forgetsBetweenParagraphsWhatIsTooMuch) {
    LemmaCache cache(*model_);
    std::size_t most = 0;
    for (int paragraph = 0; paragraph < 200; ++paragraph) {
        cache.startParagraph();
        for (int word = 0; word < 2000; ++word) {
            const std::string form = "W" + std::to_string(paragraph) + "x" + std::to_string(word) + "s";
            EXPECT_EQ(lemmas(cache, {{form, UniversalPos::NOUN}})[0].back(), form[form.size() - 2]);
        }
        most = std::max(most, cache.bytesHeld());
    }
    EXPECT_LT(most, std::size_t{4} << 20);
}

TEST_F(LemmaCacheTest, keepsItsLemmasWhereTheyAreUntilTheParagraphEnds) {
    LemmaCache cache(*model_);
    const std::vector<TaggedWord> first = {{"Dogs", UniversalPos::NOUN}};
    std::vector<std::string_view> kept(1);
    cache.lemmatize(first, kept);
    for (int word = 0; word < 50'000; ++word)
        static_cast<void>(lemmas(cache, {{"A" + std::to_string(word) + "s", UniversalPos::NOUN}}));
    EXPECT_EQ(kept[0], "dog");
}

TEST(WordPlaceTest, tellsWhereACapitalMeansLittle) {
    const auto word = [](std::string_view form) { return TaggedWord{form, UniversalPos::NOUN}; };
    const auto mark = [](std::string_view form) { return TaggedWord{form, UniversalPos::PUNCT}; };
    const std::vector<TaggedWord> quoted = {mark("\""), word("Yes"), mark("-"), word("No")};
    EXPECT_EQ(placeOf(quoted, 1), WordPlace::first);
    EXPECT_EQ(placeOf(quoted, 3), WordPlace::afterMark);
    const std::vector<TaggedWord> loud = {word("GO"), word("AWAY"), word("Now"), word("ÉTÉ"), word("É")};
    EXPECT_EQ(placeOf(loud, 0), WordPlace::shouted);
    EXPECT_EQ(placeOf(loud, 2), WordPlace::within);
    EXPECT_EQ(placeOf(loud, 3), WordPlace::within);
}

} // namespace
} // namespace lexiform::linguistics
