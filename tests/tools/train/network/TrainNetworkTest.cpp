#include "tools/train/network/trainNetwork.h"

#include "linguistics/network/NetworkTagger.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace lexiform::train {
namespace {

using namespace linguistics;

GoldSentence sentence(const std::vector<std::pair<std::string, UniversalPos>>& words) {
    GoldSentence result;
    for (const auto& [form, pos] : words) {
        GoldToken token;
        token.form = form;
        token.pos = pos;
        token.finePos = pos == UniversalPos::NOUN ? "NN" : "XX";
        token.name = pos == UniversalPos::PROPN ? NameLabel::beginsPlace : NameLabel::outside;
        result.tokens.push_back(token);
    }
    return result;
}

/// A language of four kinds of words, and a folder with a text in it.
class TrainNetwork : public testing::Test {
protected:
    TrainNetwork() {
        text_ = std::filesystem::path(testing::TempDir()) / "train-network-open-text.txt";
        std::ofstream output(text_);
        Source source;
        source.name = "made-up";
        source.tagWeight = source.nameWeight = 1;
        const std::vector<std::string> nouns = {"cat", "dog", "horse", "bird"}, verbs = {"sees", "likes"},
                                       places = {"Rome", "Oslo", "Paris"};
        for (int i = 0; i < 400; ++i) {
            const std::string& noun = nouns[static_cast<std::size_t>(i * 7) % 4];
            const std::string& verb = verbs[static_cast<std::size_t>(i * 5) % 2];
            const std::string& place = places[static_cast<std::size_t>(i * 11) % 3];
            source.corpus.push_back(sentence({{"The", UniversalPos::DET},
                                              {noun, UniversalPos::NOUN},
                                              {verb, UniversalPos::VERB},
                                              {place, UniversalPos::PROPN},
                                              {".", UniversalPos::PUNCT}}));
            output << "The " << noun << ' ' << verb << " the " << nouns[static_cast<std::size_t>(i) % 4]
                   << ".\n";
        }
        sources_.language = "en";
        sources_.development.push_back(source);
        sources_.training.push_back(std::move(source));
        sources_.openTexts.push_back(text_);
    }
    ~TrainNetwork() override { std::filesystem::remove(text_); }

    [[nodiscard]] std::vector<std::byte> trained() const {
        NetworkOptions options = NetworkOptions::secondRing();
        options.plan.epochs = 3;
        options.teachers = 1;
        options.teacher.width = options.teacher.units = 16;
        options.teacherPlan.epochs = 2;
        options.teacherAffixes = options.affixes = 0.1;
        options.silverWords = 500;
        ModelFileWriter file("en");
        std::ostringstream log;
        EXPECT_EQ(trainNetwork(sources_, {}, options, file, log), std::nullopt);
        return file.bytes();
    }

    std::filesystem::path text_;
    LanguageSources sources_;
};

TEST_F(TrainNetwork, givesANetworkThatHasLearned) {
    const std::vector<std::byte> bytes = trained();
    const auto file = ModelFile::over(bytes);
    const auto model = NetworkModel::over(file.value());
    ASSERT_TRUE(model.succeeded());
    NetworkTagger tagger(model.value());
    const std::vector<std::string_view> words = {"The", "bird", "sees", "Oslo", "."};
    std::vector<WordLabels> labels(words.size());
    tagger.tag(words, labels);
    EXPECT_EQ(labels[0].pos, UniversalPos::DET);
    EXPECT_EQ(labels[1].pos, UniversalPos::NOUN);
    EXPECT_EQ(labels[2].pos, UniversalPos::VERB);
    EXPECT_EQ(labels[3].pos, UniversalPos::PROPN);
    EXPECT_EQ(labels[3].name, NameLabel::beginsPlace);
    EXPECT_EQ(labels[4].pos, UniversalPos::PUNCT);
}

TEST_F(TrainNetwork, givesTheSameBytesTwice) {
    EXPECT_EQ(trained(), trained());
}

TEST_F(TrainNetwork, saysWhichTextIsMissing) {
    sources_.openTexts = {"/nowhere/text.txt"};
    ModelFileWriter file("en");
    std::ostringstream log;
    const auto fault = trainNetwork(sources_, {}, NetworkOptions::secondRing(), file, log);
    ASSERT_TRUE(fault.has_value());
    EXPECT_NE(fault->find("/nowhere/text.txt"), std::string::npos);
}

} // namespace
} // namespace lexiform::train
