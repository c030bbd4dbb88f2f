#include "tools/train/lemmas/trainLemmas.h"

#include "linguistics/file/ModelFile.h"
#include "linguistics/lemmas/Lemmatizer.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/evaluation/LemmaEvaluation.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lexiform::train {
namespace {

using namespace linguistics;

GoldToken token(std::string form, UniversalPos pos, std::string lemma) {
    GoldToken token;
    token.form = std::move(form);
    token.pos = pos;
    token.lemma = std::move(lemma);
    return token;
}

/// Regular nouns and verbs, a few words that are not, names, and two lemmas of "left".
Corpus englishSentences() {
    Corpus corpus;
    for (const char* noun : {"dog", "cat", "tree", "girl", "boat", "song", "lamp", "bird", "road", "farm"}) {
        const std::string one = noun, many = one + "s";
        corpus.push_back({{token("The", UniversalPos::DET, "the"), token(many, UniversalPos::NOUN, one),
                           token("left", UniversalPos::VERB, "leave"), token("the", UniversalPos::DET, "the"),
                           token(one, UniversalPos::NOUN, one), token(".", UniversalPos::PUNCT, ".")},
                          true});
        corpus.push_back({{token("We", UniversalPos::PRON, "we"), token("went", UniversalPos::VERB, "go"),
                           token("to", UniversalPos::ADP, "to"), token("Oslo", UniversalPos::PROPN, "Oslo"),
                           token("with", UniversalPos::ADP, "with"), token(many, UniversalPos::NOUN, one)},
                          true});
        corpus.push_back({{token("Nothing", UniversalPos::PRON, "nothing"),
                           token("is", UniversalPos::AUX, "be"), token("left", UniversalPos::VERB, "left"),
                           token("of", UniversalPos::ADP, "of"), token("it", UniversalPos::PRON, "it")},
                          true});
    }
    return corpus;
}

LanguageSources sources() {
    LanguageSources sources;
    sources.language = "en";
    sources.training.push_back({"own", englishSentences(), 1, 1, 0, true});
    return sources;
}

std::vector<std::byte> trained() {
    ModelFileWriter writer("en");
    std::ostringstream log;
    trainLemmas(sources(), "/nonexistent", writer, log);
    return writer.bytes();
}

/// A model trained from the sentences above.
class TrainLemmas : public testing::Test {
protected:
    TrainLemmas() : bytes_(trained()) {
        const auto file = ModelFile::over(bytes_);
        const auto model = LemmaModel::over(file.value());
        model_.emplace(model.value());
    }

    std::string lemma(const std::vector<TaggedWord>& sentence, std::size_t at) {
        return Lemmatizer(*model_).lemmaOf(sentence, at).lemma;
    }

    std::vector<std::byte> bytes_;
    std::optional<LemmaModel> model_;
};

TEST_F(TrainLemmas, givesTheSameBytesForTheSameSources) {
    EXPECT_EQ(bytes_, trained());
}

TEST_F(TrainLemmas, learnsWhatItIsShown) {
    EXPECT_EQ(evaluateLemmas(*model_, nullptr, englishSentences()).accuracy(), 100);
}

TEST_F(TrainLemmas, appliesItsRulesToOtherWords) {
    EXPECT_EQ(lemma({{"of", UniversalPos::ADP}, {"hills", UniversalPos::NOUN}}, 1), "hill");
    EXPECT_EQ(lemma({{"Hills", UniversalPos::NOUN}}, 0), "hill");
    EXPECT_EQ(lemma({{"in", UniversalPos::ADP}, {"Oslo", UniversalPos::PROPN}}, 1), "Oslo");
}

TEST_F(TrainLemmas, tellsLemmasApartByNeighbours) {
    EXPECT_EQ(
        lemma({{"They", UniversalPos::PRON}, {"left", UniversalPos::VERB}, {"the", UniversalPos::DET}}, 1),
        "leave");
    EXPECT_EQ(lemma({{"is", UniversalPos::AUX}, {"left", UniversalPos::VERB}, {"of", UniversalPos::ADP}}, 1),
              "left");
}

TEST_F(TrainLemmas, measuresFaultsOneByOne) {
    Corpus wrong = {{{token("dogs", UniversalPos::NOUN, "cat")}, true}};
    std::string given;
    const LemmaFigures figures =
        evaluateLemmas(*model_, nullptr, wrong, [&](const LemmaFault& fault) { given = fault.lemma; });
    EXPECT_EQ(figures.words, 1U);
    EXPECT_EQ(figures.right, 0U);
    EXPECT_EQ(given, "dog");
    wrong[0].tokens[0].furtherLemmas = {"dog"};
    EXPECT_EQ(evaluateLemmas(*model_, nullptr, wrong).right, 1U);
}

// Words as in a treebank without lemmas, each often enough to be learnt.
LanguageSources withoutLemmas() {
    GoldSentence sentence;
    for (const auto& [form, pos] :
         {std::pair{"Buku", UniversalPos::NOUN}, std::pair{"nya", UniversalPos::PRON},
          std::pair{"digunakan", UniversalPos::VERB}, std::pair{"kami", UniversalPos::PRON}}) {
        GoldToken word = token(form, pos, "");
        word.lemma = std::nullopt;
        sentence.tokens.push_back(word);
    }
    LanguageSources sources;
    sources.language = "id";
    sources.training.push_back({"own", Corpus(4, sentence), 1});
    return sources;
}

TEST(TrainLemmasTest, takesTheLemmasOfListsWhereNoTreebankHasAny) {
    const TextFolder corpora("takesTheLemmasOfLists");
    corpora.write("id/lexicon/id_lemma_lookup.json", R"({"menggunakan": "guna"})");
    ModelFileWriter writer("id");
    std::ostringstream log;
    trainLemmas(withoutLemmas(), corpora.path(), writer, log);
    const auto bytes = writer.bytes();
    const auto file = ModelFile::over(bytes);
    const auto model = LemmaModel::over(file.value());
    const auto lemma = [&](const char* form, UniversalPos pos) {
        return Lemmatizer(model.value()).lemmaOf(std::vector<TaggedWord>{{form, pos}}, 0).lemma;
    };
    EXPECT_EQ(lemma("nya", UniversalPos::PRON), "dia");
    EXPECT_EQ(lemma("digunakan", UniversalPos::VERB), "guna");
    EXPECT_EQ(lemma("kami", UniversalPos::PRON), "kami");
}

TEST(TrainLemmasTest, leavesEveryWordAsItIsWithoutSources) {
    ModelFileWriter writer("xx");
    std::ostringstream log;
    LanguageSources none;
    none.language = "xx";
    trainLemmas(none, "/nonexistent", writer, log);
    const auto bytes = writer.bytes();
    const auto file = ModelFile::over(bytes);
    const auto model = LemmaModel::over(file.value());
    ASSERT_TRUE(model.succeeded());
    const std::vector<TaggedWord> sentence = {{"words", UniversalPos::NOUN}};
    EXPECT_EQ(Lemmatizer(model.value()).lemmaOf(sentence, 0).lemma, "words");
}

} // namespace
} // namespace lexiform::train
