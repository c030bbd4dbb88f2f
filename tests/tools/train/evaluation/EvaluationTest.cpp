#include "tools/train/evaluation/Evaluation.h"
#include "linguistics/model/ModelStore.h"
#include "tests/tools/train/GoldWords.h"
#include "tools/train/evaluation/Confusions.h"
#include "tools/train/evaluation/GoldText.h"
#include "tools/train/evaluation/Squeezed.h"
#include "tools/train/lemmas/LemmaModelWriter.h"

#include <gtest/gtest.h>

#include <map>

namespace lexiform::train {
namespace {

using namespace linguistics;
using enum linguistics::UniversalPos;

/// Gives each word the labels that a table has for it, and NOUN to all others.
class TableModel : public SequenceModel {
public:
    explicit TableModel(std::map<std::string, WordLabels, std::less<>> table) : table_(std::move(table)) {}

    [[nodiscard]] std::unique_ptr<SequenceTagger> tagger() const override {
        return std::make_unique<Tagger>(table_);
    }

private:
    using Table = std::map<std::string, WordLabels, std::less<>>;

    struct Tagger : SequenceTagger {
        explicit Tagger(const Table& known) : table(known) {}
        void tag(std::span<const std::string_view> words, std::span<WordLabels> labels) override {
            for (std::size_t i = 0; i < words.size(); ++i) {
                const auto found = table.find(words[i]);
                labels[i] = found == table.end() ? WordLabels{NOUN} : found->second;
            }
        }
        LexiconEntry entryOf(std::string_view) override { return {}; }
        const Table& table;
    };

    Table table_;
};

GoldToken contraction() {
    GoldToken token = word("du", ADP, "de");
    token.furtherPos = {DET};
    token.furtherLemmas = {"le"};
    return token;
}

GoldToken joined(GoldToken token) {
    token.spaceAfter = false;
    return token;
}

// Without models every word is X and marks are what their characters make them.
Engine engineWithoutModels() {
    return Engine(std::make_shared<const ModelStore>(std::vector<std::filesystem::path>{}));
}

TEST(Evaluation, countsTheRightPartsOfSpeechOfGoldTokens) {
    const Corpus gold = {sentence({word("a", DET, "a"), word("dog", NOUN, "dog"), word("ran", VERB, "run")})};
    const auto figures = evaluateTokens(TableModel({{"a", {DET}}}), gold);
    EXPECT_EQ(figures.pos.right, 2U);
    EXPECT_EQ(figures.pos.gold, 3U);
}

TEST(Evaluation, takesThePartOfSpeechOfAnyWordOfAContraction) {
    const Corpus gold = {sentence({contraction()})};
    EXPECT_EQ(evaluateTokens(TableModel({{"du", {DET}}}), gold).pos.right, 1U);
    EXPECT_EQ(evaluateTokens(TableModel({{"du", {ADP}}}), gold).pos.right, 1U);
    EXPECT_EQ(evaluateTokens(TableModel({}), gold).pos.right, 0U);
}

TEST(Evaluation, countsWholeNamesOfTheRightType) {
    const Corpus gold = {
        sentence({named("Ann", NameLabel::beginsPerson), named("Lee", NameLabel::insidePerson),
                  named("in", NameLabel::outside), named("Rome", NameLabel::beginsPlace)})};
    const TableModel model({{"Ann", {PROPN, NameLabel::beginsPerson}},
                            {"Lee", {PROPN, NameLabel::outside}},
                            {"Rome", {PROPN, NameLabel::beginsPlace}}});
    const auto figures = evaluateTokens(model, gold);
    EXPECT_EQ(figures.names.right, 1U);
    EXPECT_EQ(figures.names.system, 2U);
    EXPECT_EQ(figures.names.gold, 2U);
    EXPECT_EQ(figures.pos.gold, 0U) << "names alone have no parts of speech";
}

TEST(Evaluation, endsNamesWithTheSentence) {
    const Corpus gold = {sentence({named("Ann", NameLabel::beginsPerson)}),
                         sentence({named("Lee", NameLabel::beginsPerson)})};
    const TableModel model(
        {{"Ann", {PROPN, NameLabel::beginsPerson}}, {"Lee", {PROPN, NameLabel::insidePerson}}});
    EXPECT_EQ(evaluateTokens(model, gold).names.right, 2U);
}

TEST(Evaluation, findsTokensOfTheRawTextWhateverSpacesAreInThem) {
    const Corpus gold = {
        sentence({word("10 000", NUM, "10 000"), joined(word("cats", NOUN, "cat")), word(".", PUNCT, ".")})};
    const auto figures = evaluateText(engineWithoutModels(), gold);
    EXPECT_EQ(figures.tokens.gold, 3U);
    EXPECT_EQ(figures.tokens.system, 4U) << "10, 000, cats and the stop";
    EXPECT_EQ(figures.tokens.right, 2U);
    EXPECT_EQ(figures.pos.right, 1U) << "the stop";
}

TEST(Evaluation, mergesTagsToLexicalClasses) {
    const Corpus gold = {sentence({word("+", SYM, "+"), word("word", X, "word"), word("cat", NOUN, "cat")})};
    const auto figures = evaluateText(engineWithoutModels(), gold);
    EXPECT_EQ(figures.pos.right, 2U);
    EXPECT_EQ(figures.lexicalClass.right, 2U) << "NOUN is no X";
    Corpus asX = gold;
    asX[0].tokens[0].pos = X;
    EXPECT_EQ(evaluateText(engineWithoutModels(), asX).pos.right, 1U);
    EXPECT_EQ(evaluateText(engineWithoutModels(), asX).lexicalClass.right, 2U) << "SYM counts as X";
}

TEST(Evaluation, leavesOutUnknownLemmas) {
    Corpus gold = {sentence({word("cats", NOUN, "cat"), word("dogs", NOUN, "dog")})};
    gold[0].tokens[1].lemma.reset();
    const auto figures = evaluateText(engineWithoutModels(), gold);
    EXPECT_EQ(figures.lemmas.gold, 1U);
    EXPECT_EQ(figures.lemmas.system, 1U);
    EXPECT_EQ(figures.lemmas.right, 0U);
}

TEST(Evaluation, wantsBothEndsOfASentence) {
    const Corpus gold = {sentence({word("Yes", INTJ, "yes"), word("!", PUNCT, "!")}),
                         sentence({word("No", INTJ, "no"), word("no", INTJ, "no")}),
                         sentence({word("no", INTJ, "no"), word("!", PUNCT, "!")})};
    const auto figures = evaluateText(engineWithoutModels(), gold);
    EXPECT_EQ(figures.sentences.gold, 3U);
    EXPECT_EQ(figures.sentences.system, 2U) << "no small letter begins a sentence";
    EXPECT_EQ(figures.sentences.right, 1U);
}

TEST(SpanCount, isTheHarmonicMeanOfPrecisionAndRecall) {
    EXPECT_DOUBLE_EQ((SpanCount{1, 2, 2}).f1(), 50);
    EXPECT_DOUBLE_EQ((SpanCount{2, 2, 6}).f1(), 50);
    EXPECT_DOUBLE_EQ((SpanCount{0, 0, 0}).f1(), 0);
}

TEST(GoldText, joinsTokensAndPartsParagraphs) {
    Corpus corpus = {sentence({joined(word("Yes", INTJ, "yes")), word("!", PUNCT, "!")}),
                     sentence({word("No", INTJ, "no")}), sentence({word("End", NOUN, "end")})};
    corpus[2].startsParagraph = true;
    const GoldText gold = textOf(corpus);
    EXPECT_EQ(gold.text, "Yes! No \n\nEnd ");
    EXPECT_EQ(gold.sentenceStarts, (std::vector<std::size_t>{0, 5, 10}));
    EXPECT_EQ(gold.tokens.at(1), (TextRange{3, 1}));
    EXPECT_TRUE(tellsSpaces(corpus));
    EXPECT_FALSE(tellsSpaces({corpus[1]}));
}

TEST(Squeezed, countsNoWhiteSpaceOfAnyKind) {
    const Squeezed squeezed("a b\xC2\xA0"
                            "c\xE3\x80\x80"
                            "d\xFF");
    EXPECT_EQ(squeezed.of({0, 1}), (TextRange{0, 1}));
    EXPECT_EQ(squeezed.of({0, 6}), (TextRange{0, 3}));
    EXPECT_EQ(squeezed.of({6, 3}).length, 0U);
    EXPECT_EQ(squeezed.of({9, 2}), (TextRange{3, 2})) << "a stray byte is no space";
}

TEST(Confusions, listTheCommonestWrongPartsOfSpeech) {
    const Corpus gold = {
        sentence({word("Run", VERB, "run"), word("run", VERB, "run"), word("red", ADJ, "red")})};
    const auto confusions = confusionsOf(TableModel({}), gold, 1);
    ASSERT_EQ(confusions.size(), 1U);
    EXPECT_EQ(confusions[0].form, "run");
    EXPECT_EQ(confusions[0].count, 2U);
    EXPECT_EQ(confusions[0].gold, VERB);
    EXPECT_EQ(confusions[0].system, NOUN);
}

TEST(Confusions, listTheCommonestWrongLemmas) {
    ModelFileWriter writer("xx");
    writeLemmas(std::vector<LemmaRule>{{}}, {}, writer);
    const auto bytes = writer.bytes();
    const auto file = ModelFile::over(bytes);
    const auto unchanging = LemmaModel::over(file.value());
    const Corpus gold = {
        sentence({word("ran", VERB, "run"), word("red", ADJ, "red"), word("ran", VERB, "run")})};
    const auto confusions = lemmaConfusionsOf(TableModel({}), unchanging.value(), gold, 5);
    ASSERT_EQ(confusions.size(), 1U);
    EXPECT_EQ(confusions[0].count, 2U);
    EXPECT_EQ(confusions[0].form, "ran");
    EXPECT_EQ(confusions[0].pos, NOUN) << "as the model tags it";
    EXPECT_EQ(confusions[0].gold, "run");
    EXPECT_EQ(confusions[0].system, "ran");
}

} // namespace
} // namespace lexiform::train
