#include "linguistics/language/LanguageIdentifier.h"
#include "linguistics/language/NgramFeatures.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/language/NgramTrainer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace lexiform::train {
namespace {

using namespace linguistics;
namespace fs = std::filesystem;

constexpr std::size_t buckets = 4;

LanguageRecord languageNamed(const std::string& code) {
    LanguageRecord record;
    std::copy(code.begin(), code.end(), record.code.begin());
    record.writings = setOf(Writing::latin);
    record.thorough = 1;
    return record;
}

/// The parts of a file that tells two languages by one word each; a test damages one of them.
struct Parts {
    std::vector<LanguageRecord> languages = {languageNamed("aa"), languageNamed("bb")};
    std::vector<std::uint32_t> starts = std::vector<std::uint32_t>(buckets + 1, 0);
    std::vector<NgramWeight> weights;

    Parts() { addWordsAs(u" water ", 0), addWordsAs(u" vatten ", 1); }

    void addWordsAs(std::u16string_view words, std::uint8_t language) {
        visitNgrams(words, [&](std::uint64_t hash) {
            const std::size_t bucket = ngramBucketOf(hash, buckets);
            weights.insert(weights.begin() + starts[bucket], {ngramCheckOf(hash), language, 40});
            for (std::size_t i = bucket + 1; i <= buckets; ++i)
                ++starts[i];
        });
    }
};

class IdentificationModel : public testing::Test {
protected:
    IdentificationModel() : file_(fs::path(testing::TempDir()) / "identification-model-test.lxi") {}
    ~IdentificationModel() override { fs::remove(file_); }

    Outcome<LanguageIdentifier, ModelFault> load(const Parts& parts) {
        ModelFileWriter image("mul");
        image.append(identificationLanguages, identificationVersion, parts.languages);
        image.append(identificationBuckets, identificationVersion, parts.starts);
        image.append(identificationWeights, identificationVersion, parts.weights);
        return load(image.bytes());
    }

    Outcome<LanguageIdentifier, ModelFault> load(const std::vector<std::byte>& bytes) {
        std::ofstream(file_, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return LanguageIdentifier::load(file_);
    }

    std::string faultOf(const Parts& parts) {
        const auto loaded = load(parts);
        return loaded.succeeded() ? "" : loaded.fault().reason;
    }

    fs::path file_;
};

TEST_F(IdentificationModel, tellsWhatItsWeightsSay) {
    const auto loaded = load(Parts());
    ASSERT_TRUE(loaded.succeeded());
    EXPECT_EQ(loaded.value().guess("Water!").language, "aa");
    EXPECT_EQ(loaded.value().guess("VATTEN").language, "bb");
    EXPECT_EQ(loaded.value().guess("Water!").confidence(), 100);
}

TEST_F(IdentificationModel, isRefusedWhenALanguageHasNoCode) {
    Parts empty;
    empty.languages[1] = languageNamed("");
    EXPECT_EQ(faultOf(empty), "a language has no code");
    Parts endless;
    endless.languages[1].code.fill('x');
    EXPECT_EQ(faultOf(endless), "a language has no code");
}

TEST_F(IdentificationModel, isRefusedWithNoneOrTooManyLanguages) {
    Parts none;
    none.languages.clear();
    EXPECT_EQ(faultOf(none), "the languages have a wrong count");
    Parts many;
    many.languages.resize(mostLanguages + 1, languageNamed("cc"));
    EXPECT_EQ(faultOf(many), "the languages have a wrong count");
}

TEST_F(IdentificationModel, isRefusedWhenAWeightIsForNoLanguage) {
    Parts parts;
    parts.weights.back().language = 2;
    EXPECT_EQ(faultOf(parts), "a weight is for no language");
}

TEST_F(IdentificationModel, isRefusedWhenBucketsDoNotCoverTheWeights) {
    for (const auto damage :
         {+[](Parts& parts) { ++parts.starts.back(); }, +[](Parts& parts) { parts.starts[0] = 1; },
          +[](Parts& parts) { parts.starts[1] = 0xFFFFFFFF; }}) {
        Parts parts;
        damage(parts);
        EXPECT_EQ(faultOf(parts), "the buckets do not cover the weights");
    }
    Parts odd;
    odd.starts.push_back(odd.starts.back());
    EXPECT_EQ(faultOf(odd), "the buckets have a wrong count");
}

TEST_F(IdentificationModel, isRefusedWhenASectionIsMissing) {
    EXPECT_FALSE(load(ModelFileWriter("mul").bytes()).succeeded());
}

std::vector<NgramExample> examplesOf(const std::vector<std::u16string>& words, std::uint8_t language) {
    std::vector<NgramExample> examples;
    for (int copy = 0; copy < 20; ++copy)
        for (const std::u16string& word : words) {
            examples.push_back({{}, language});
            visitNgrams(u" " + word + u" ",
                        [&](std::uint64_t feature) { examples.back().features.push_back(feature); });
        }
    return examples;
}

std::vector<TrainedWeight> trainedOnTwo() {
    auto examples = examplesOf({u"water", u"under", u"winter"}, 0);
    for (NgramExample& example : examplesOf({u"vatten", u"undan", u"vinter"}, 1))
        examples.push_back(std::move(example));
    std::ostringstream log;
    NgramTraining training;
    training.languages = 2;
    return trainNgrams(std::move(examples), training, log);
}

TEST(NgramTrainer, learnsWhichLanguageAFeatureSpeaksFor) {
    float water = 0;
    visitNgrams(u" water ", [&](std::uint64_t feature) {
        for (const TrainedWeight& weight : trainedOnTwo())
            if (weight.feature == feature) water += weight.language == 0 ? weight.weight : -weight.weight;
    });
    EXPECT_GT(water, 1);
}

TEST(NgramTrainer, givesTheSameWeightsEveryTime) {
    const auto first = trainedOnTwo();
    const auto second = trainedOnTwo();
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(first[i].weight, second[i].weight);
}

} // namespace
} // namespace lexiform::train
