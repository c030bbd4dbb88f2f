#include "linguistics/language/LanguageIdentifier.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace lexiform::linguistics {
namespace {

namespace fs = std::filesystem;

struct Sentence {
    std::string language;
    std::string text;
};

// Two sentences, or one where the script tells, in each of some eighty languages.
std::vector<Sentence> sentences() {
    std::ifstream input(fs::path(LEXIFORM_SOURCE_DIR) / "tests/linguistics/language/sentences.tsv");
    std::vector<Sentence> all;
    for (std::string line; std::getline(input, line);)
        if (const std::size_t tab = line.find('\t'); tab != std::string::npos)
            all.push_back({line.substr(0, tab), line.substr(tab + 1)});
    return all;
}

std::string languageOf(std::string_view text) {
    return std::string(LanguageIdentifier().guess(text).language);
}

TEST(LanguageIdentifier, tellsAScriptThatOneLanguageHasToItself) {
    EXPECT_EQ(languageOf("서울"), "ko");
    EXPECT_EQ(languageOf("ありがとう"), "ja");
    EXPECT_EQ(languageOf("Καλημέρα"), "el");
    EXPECT_EQ(languageOf("สวัสดี"), "th");
    EXPECT_EQ(languageOf("გამარჯობა"), "ka");
    EXPECT_EQ(languageOf("Բարև"), "hy");
    EXPECT_EQ(languageOf("你好，世界"), "zh");
    EXPECT_EQ(languageOf("東京は日本の首都です"), "ja");
}

TEST(LanguageIdentifier, tellsThatAFewKanaMakeHanJapanese) {
    EXPECT_EQ(languageOf("新幹線東京駅発車時刻表の確認"), "ja");
}

TEST(LanguageIdentifier, givesNothingWhereNoLetterIs) {
    for (const char* text : {"", " ", "12 + 30 = 42", "…!?", "\xFF\xFE", "😀😀", "https://example.org/a/b"}) {
        const Guess guess = LanguageIdentifier().guess(text);
        EXPECT_EQ(guess.language, "") << text;
        EXPECT_EQ(guess.confidence(), 0) << text;
    }
}

TEST(LanguageIdentifier, isTheSurerTheMoreItReads) {
    const LanguageIdentifier identifier;
    EXPECT_LT(identifier.guess("我").confidence(), identifier.guess("我们今天去图书馆").confidence());
}

TEST(LanguageIdentifier, isLessSureOfMixedScripts) {
    const LanguageIdentifier identifier;
    EXPECT_LT(identifier.guess("서울 and quite a lot of English here").confidence(),
              identifier.guess("서울 시장은 오늘").confidence() + 1);
}

TEST(LanguageIdentifier, looksAtASampleOfALongText) {
    std::string text;
    for (int i = 0; i < 20'000; ++i)
        text += "слово за словом ";
    const Guess guess = LanguageIdentifier().guess(text);
    EXPECT_LE(guess.letters, LetterText::largestSample);
    EXPECT_GT(guess.letters, 200U);
}

TEST(LanguageIdentifier, knowsEachLanguageOnce) {
    const auto known = LanguageIdentifier().languagesKnown();
    EXPECT_GT(known.size(), 80U);
    EXPECT_EQ(std::set<std::string_view>(known.begin(), known.end()).size(), known.size());
    for (const char* code : {"en", "zh", "ja", "nb", "he", "uk", "fa", "th"})
        EXPECT_TRUE(std::binary_search(known.begin(), known.end(), code)) << code;
}

TEST(LanguageIdentifier, saysWhyAFileCannotBeUsed) {
    EXPECT_FALSE(LanguageIdentifier::load("/no/such/file").succeeded());
    const auto other = LanguageIdentifier::load(fs::path(LEXIFORM_SOURCE_DIR) / "README.md");
    ASSERT_FALSE(other.succeeded());
    EXPECT_EQ(other.fault().reason, "the file is not a model");
}

// Most languages can be told without a model, though less surely.
TEST(LanguageIdentifier, tellsMostLanguagesWithoutAModel) {
    std::size_t right = 0;
    const auto all = sentences();
    for (const Sentence& sentence : all)
        right += languageOf(sentence.text) == sentence.language;
    ASSERT_GT(all.size(), 120U);
    EXPECT_GT(right * 100, all.size() * 85);
}

class TrainedIdentifier : public testing::Test {
protected:
    TrainedIdentifier() {
        const fs::path file = fs::path(LEXIFORM_MODELS_DIR) / "languages.lxi";
        if (!fs::exists(file)) return;
        auto loaded = LanguageIdentifier::load(file);
        if (loaded.succeeded())
            identifier_ = loaded.value();
        else
            ADD_FAILURE() << loaded.fault().reason;
    }
    void SetUp() override { ASSERT_TRUE(identifier_) << "there is no model of languages"; }

    std::optional<LanguageIdentifier> identifier_;
};

TEST_F(TrainedIdentifier, tellsTheSentencesOfManyLanguages) {
    std::size_t wrong = 0;
    const auto all = sentences();
    for (const Sentence& sentence : all) {
        const auto guess = identifier_->guess(sentence.text);
        if (guess.language == sentence.language) continue;
        ++wrong;
        std::cout << sentence.language << " taken for " << guess.language << ": " << sentence.text << '\n';
    }
    EXPECT_LE(wrong * 100, all.size() * 3);
}

TEST_F(TrainedIdentifier, isSureOfPlainSentences) {
    EXPECT_GE(identifier_->guess("She never told anyone why she had left the company.").confidence(), 95);
}

TEST_F(TrainedIdentifier, prefersTheLanguageAroundAShortText) {
    EXPECT_EQ(identifier_->guess("De kommer i dag.", "da").language, "da");
    EXPECT_EQ(identifier_->guess("De kommer i dag.", "nb").language, "nb");
    EXPECT_EQ(identifier_->guess("Niemand wusste, warum die Lichter noch brannten.", "en").language, "de");
}

TEST_F(TrainedIdentifier, isNotSureOfAnotherLanguageByANameAlone) {
    for (const char* name : {"Phillip", "Vladi Pimenov", "R.E. Glenn", "Lizzie"}) {
        const auto guess = identifier_->guess(name, "en");
        EXPECT_TRUE(guess.language == "en" || guess.confidence() < 90) << name << ": " << guess.language;
    }
}

TEST_F(TrainedIdentifier, tellsDecomposedTextLikeComposed) {
    EXPECT_EQ(identifier_
                  ->guess("Kho\xCC\x82ng ai bie\xCC\x82\xCC\x81t ta\xCC\xA3i sao co\xCC\x82 "
                          "a\xCC\x82\xCC\x81y ro\xCC\x9B\xCC\x80i co\xCC\x82ng ty.")
                  .language,
              "vi");
}

} // namespace
} // namespace lexiform::linguistics
