#include "linguistics/network/NetworkTagger.h"

#include "tests/linguistics/network/SmallNetwork.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::linguistics {
namespace {

/// A tagger over a small network.
struct TaggerUnderTest {
    std::vector<std::byte> bytes;
    NetworkModel model;
    NetworkTagger tagger;

    explicit TaggerUnderTest(const SmallNetwork& network = SmallNetwork(),
                             const NetworkKernels& kernels = fastestKernels())
        : bytes(network.bytes()), model(NetworkModel::over(ModelFile::over(bytes).value()).value()),
          tagger(model, kernels) {}

    std::string tag(std::vector<std::string_view> words) {
        std::vector<WordLabels> labels(words.size());
        tagger.tag(words, labels);
        std::string result;
        for (const WordLabels& label : labels)
            result += std::string(nameOf(label.pos)) + std::to_string(static_cast<int>(label.name)) + " ";
        return result;
    }
};

const std::vector<std::string_view> sentence = {"The",  "old", "dog",      "slept", "in",
                                                "Oslo", ",",   "Норвегия", "."};

TEST(NetworkTagger, labelsASentenceTheSameWayInEveryKindOfInstructions) {
    for (std::uint32_t seed = 1; seed < 20; ++seed) {
        TaggerUnderTest plain(SmallNetwork(seed), portableKernels());
        for (const NetworkKernels* kernels : presentKernels()) {
            TaggerUnderTest other(SmallNetwork(seed), *kernels);
            EXPECT_EQ(plain.tag(sentence), other.tag(sentence));
        }
    }
}

TEST(NetworkTagger, labelsASentenceTheSameWayWhateverCameBefore) {
    TaggerUnderTest fresh, used;
    used.tag({"Oslo", "slept"});
    std::vector<std::string> forms;
    for (int i = 0; i < 30000; ++i)
        forms.push_back("word" + std::string(1, static_cast<char>('a' + i % 26)) + std::to_string(i));
    used.tag({forms.begin(), forms.end()});
    EXPECT_EQ(fresh.tag(sentence), used.tag(sentence));
}

TEST(NetworkTagger, labelsNothingInAnEmptySentence) {
    EXPECT_EQ(TaggerUnderTest().tag({}), "");
}

TEST(NetworkTagger, startsNoNameWithAFurtherWord) {
    for (std::uint32_t seed = 1; seed < 20; ++seed) {
        TaggerUnderTest under{SmallNetwork(seed)};
        std::vector<WordLabels> labels(sentence.size());
        under.tagger.tag(sentence, labels);
        NameLabel before = NameLabel::outside;
        for (const WordLabels& label : labels) {
            EXPECT_TRUE(mayFollow(before, label.name));
            before = label.name;
        }
    }
}

TEST(NetworkTagger, tellsWhatTheLexiconKnows) {
    TaggerUnderTest under;
    EXPECT_EQ(under.tagger.entryOf("OSLO").lists, cityNames);
    EXPECT_EQ(under.tagger.entryOf("dog").ambiguity, 1);
    EXPECT_EQ(under.tagger.entryOf("cat"), LexiconEntry{});
}

} // namespace
} // namespace lexiform::linguistics
