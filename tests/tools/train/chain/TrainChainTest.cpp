#include "tools/train/chain/trainChain.h"
#include "linguistics/model/Model.h"
#include "tests/tools/train/GoldWords.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/evaluation/Evaluation.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

GoldToken person(std::string_view form) {
    GoldToken token = word(form, PROPN, form);
    token.name = NameLabel::beginsPerson;
    return token;
}

/// Ten times "Ann sings." and "Songs please Ann."
Source songs(float tagWeight, float nameWeight) {
    Source source{"songs", {}, tagWeight, 0, nameWeight};
    for (int i = 0; i < 10; ++i) {
        source.corpus.push_back(
            sentence({person("Ann"), word("sings", VERB, "sing"), word(".", PUNCT, ".")}));
        source.corpus.push_back(sentence({word("Songs", NOUN, "song"), word("please", VERB, "please"),
                                          person("Ann"), word(".", PUNCT, ".")}));
    }
    return source;
}

std::vector<std::byte> trained(std::vector<Source> training, std::size_t mostBytes = 3000000) {
    LanguageSources sources;
    sources.language = "xx";
    sources.training = std::move(training);
    ModelFileWriter file("xx");
    std::ostringstream log;
    trainChain(sources, {}, mostBytes, file, log);
    return file.bytes();
}

GoldTokenFigures figuresOf(const std::vector<std::byte>& bytes, const Corpus& gold) {
    const TextFolder folder("trainChain");
    const auto file = folder.write("xx.lxm", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    const auto model = linguistics::Model::load(file);
    if (!model.succeeded()) {
        ADD_FAILURE() << model.fault().reason;
        return {};
    }
    return evaluateTokens(*model.value(), gold);
}

TEST(TrainChain, learnsTags) {
    const Source source = songs(1, 0);
    const auto figures = figuresOf(trained({source}), source.corpus);
    EXPECT_EQ(figures.pos.right, figures.pos.gold);
}

TEST(TrainChain, learnsNothingFromSourcesThatHaveNamesAlone) {
    Source names = songs(0, 1);
    for (GoldSentence& one : names.corpus)
        for (GoldToken& token : one.tokens)
            token.pos.reset();
    EXPECT_EQ(trained({songs(1, 0), names}), trained({songs(1, 0)}));
}

TEST(TrainChain, findsNoNames) {
    const Source source = songs(1, 1);
    EXPECT_EQ(figuresOf(trained({source}), source.corpus).names.system, 0U);
}

TEST(TrainChain, leavesOutWeightsThatDoNotFit) {
    const std::size_t whole = trained({songs(1, 1)}).size();
    const std::size_t most = whole - 400;
    const auto cut = trained({songs(1, 1)}, most);
    EXPECT_LE(cut.size(), most);
    EXPECT_GT(figuresOf(cut, songs(1, 1).corpus).pos.right, 0U);
}

TEST(TrainChain, givesTheSameBytesForTheSameSources) {
    EXPECT_EQ(trained({songs(1, 1)}), trained({songs(1, 1)}));
}

} // namespace
} // namespace lexiform::train
