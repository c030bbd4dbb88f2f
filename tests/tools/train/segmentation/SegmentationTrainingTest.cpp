#include "linguistics/segmentation/LowerCasedHash.h"
#include "linguistics/segmentation/SegmentationModel.h"
#include "tests/linguistics/segmentation/CutText.h"
#include "tools/train/segmentation/LinearTrainer.h"
#include "tools/train/segmentation/RawText.h"
#include "tools/train/segmentation/UsualSpacing.h"
#include "tools/train/segmentation/WordCounts.h"
#include "tools/train/segmentation/trainSegmentation.h"

#include <gtest/gtest.h>

#include <sstream>

namespace lexiform::train {
namespace {

using namespace linguistics;

// A sentence of tokens; an underscore before one says that no space stands before it.
GoldSentence sentenceOf(const std::string& text, bool startsParagraph = false) {
    GoldSentence sentence;
    sentence.startsParagraph = startsParagraph;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        GoldToken token;
        token.form = word;
        if (word.size() > 1 && word[0] == '_') {
            sentence.tokens.back().spaceAfter = false;
            token.form = word.substr(1);
        }
        sentence.tokens.push_back(token);
    }
    return sentence;
}

TEST(RawText, laysOutParagraphsAndLines) {
    const Corpus corpus = {sentenceOf("It rained _."), sentenceOf("We left _."), sentenceOf("The end", true)};
    EXPECT_EQ(rawTextOf(corpus, Layout::paragraphs).text, "It rained. We left.\n\nThe end ");
    EXPECT_EQ(rawTextOf(corpus, Layout::lines).text, "It rained.\nWe left.\n\nThe end ");
}

TEST(RawText, marksWhereTokensEndAndSentencesStart) {
    const RawText raw = rawTextOf({sentenceOf("Go _!"), sentenceOf("Now")}, Layout::paragraphs);
    ASSERT_EQ(raw.text, "Go! Now ");
    EXPECT_TRUE(raw.tokenEnds[2]);
    EXPECT_TRUE(raw.tokenEnds[3]);
    EXPECT_FALSE(raw.tokenEnds[1]);
    EXPECT_TRUE(raw.sentenceStarts[0]);
    EXPECT_TRUE(raw.sentenceStarts[4]);
    EXPECT_FALSE(raw.sentenceStarts[3]);
    EXPECT_TRUE(raw.inToken[1]);
    EXPECT_FALSE(raw.inToken[2]);
}

TEST(RawText, wrapsAtSpacesOnly) {
    std::string words;
    for (int i = 0; i < 60; ++i)
        words += "word _, ";
    const RawText raw = rawTextOf({sentenceOf(words)}, Layout::wrapped);
    EXPECT_NE(raw.text.find(",\n"), std::string::npos);
    EXPECT_EQ(raw.text.find("\n,"), std::string::npos);
}

TEST(UsualSpacing, isRestoredWhereItWasLost) {
    const Corpus lost = {sentenceOf("( Yes ) , she said : \" no \" .")};
    EXPECT_TRUE(hasLostSpacing(lost));
    EXPECT_EQ(rawTextOf(withUsualSpacing(lost), Layout::paragraphs).text, "(Yes), she said: \"no\". ");
    EXPECT_FALSE(hasLostSpacing({sentenceOf("Yes _!")}));
}

TEST(WordCounts, findAbbreviations) {
    WordCounts counts;
    for (int i = 0; i < 10; ++i)
        counts.read("We met approx. ten of them near the wood. The wood was dark. A dark wood it was, "
                    "approx. a mile.");
    const std::vector<std::uint32_t> found = counts.abbreviations();
    EXPECT_TRUE(WordSet(found).holds(lowerCasedHash("approx")));
    EXPECT_FALSE(WordSet(found).holds(lowerCasedHash("wood")));
}

TEST(LinearTrainer, learnsWhichFeatureDecides) {
    Examples examples;
    for (std::uint32_t i = 0; i < 400; ++i) {
        const std::uint32_t features[] = {i % 2 == 0 ? 11U : 22U, 1000 + i % 7};
        examples.add(features, i % 2 == 0);
    }
    const std::vector<std::int8_t> weights = trainLinear(examples, {});
    const LinearClassifier classifier(weights);
    const std::uint32_t yes[] = {11}, no[] = {22};
    EXPECT_TRUE(classifier.decide(0, yes));
    EXPECT_FALSE(classifier.decide(0, no));
}

/// A made-up language that writes "sum" onto the word before it and abbreviates "kor.".
LanguageSources madeUpSources() {
    LanguageSources sources;
    sources.language = "xx";
    Source source;
    source.name = "made-up";
    source.hasSpacing = true;
    for (int i = 0; i < 120; ++i) {
        source.corpus.push_back(sentenceOf("Belo _sum nar kor. Tamin ge _."));
        source.corpus.push_back(sentenceOf("Ramo _sum tir _, pelo _."));
        source.corpus.push_back(sentenceOf("Nar ge kor. Belo tir _!", i % 10 == 0));
    }
    sources.training.push_back(std::move(source));
    return sources;
}

TEST(TrainSegmentation, learnsWhatTheRulesOfNoLanguageSay) {
    ModelFileWriter image("xx");
    std::ostringstream log;
    trainSegmentation(madeUpSources(), image, log);
    const std::vector<std::byte> bytes = image.bytes();
    const auto file = ModelFile::over(bytes);
    ASSERT_TRUE(file.succeeded());
    const auto model = SegmentationModel::over(file.value());
    ASSERT_TRUE(model.succeeded()) << model.fault();
    EXPECT_EQ(cutText("Ramosum nar kor. Belo ge. Tamin pelo.", "xx", &model.value().learned()),
              "Ramo|sum|nar|kor.|Belo|ge|. || Tamin|pelo|.");
}

TEST(TrainSegmentation, givesTheSameBytesForTheSameSources) {
    ModelFileWriter first("xx"), second("xx");
    std::ostringstream log;
    trainSegmentation(madeUpSources(), first, log);
    trainSegmentation(madeUpSources(), second, log);
    EXPECT_EQ(first.bytes(), second.bytes());
}

} // namespace
} // namespace lexiform::train
