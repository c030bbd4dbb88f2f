#include "tools/train/language/trainIdentification.h"

#include "linguistics/language/IdentificationFormat.h"
#include "linguistics/language/LetterText.h"
#include "linguistics/language/NgramFeatures.h"
#include "tools/train/language/Fragments.h"
#include "tools/train/language/LanguageTexts.h"
#include "tools/train/language/NgramTrainer.h"
#include "tools/train/language/OwnSamples.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>

namespace lexiform::train {

namespace {

using namespace linguistics;

constexpr std::size_t annotatedTexts = 8'000; // of each language with corpora
constexpr std::size_t openTexts = 10'000;
constexpr std::size_t sampleTexts = 8'000; // of each language with a sample alone
constexpr std::size_t bucketCount = 1 << 15;

/// Gathers examples and the languages that they are numbered by.
class Examples {
public:
    void add(const LanguageTexts& texts) {
        start(texts.language, true);
        addFragments(texts.annotated, texts.open.empty() ? annotatedTexts + openTexts : annotatedTexts);
        addFragments(texts.open, openTexts);
        finish();
    }

    void add(const OwnSample& sample) {
        start(sample.language, false);
        for (std::size_t i = 0; i < sampleTexts / 2; ++i)
            addText(fragments_.mixtureOf(sample.words));
        addFragments(sample.sentences, sampleTexts / 2);
        finish();
    }

    [[nodiscard]] const std::vector<LanguageRecord>& languages() const { return languages_; }
    [[nodiscard]] std::vector<NgramExample> take() { return std::move(examples_); }

private:
    void start(std::string_view language, bool thorough) {
        LanguageRecord record;
        std::copy_n(language.begin(), std::min(language.size(), record.code.size() - 1), record.code.begin());
        record.thorough = thorough ? 1 : 0;
        languages_.push_back(record);
        letters_.fill(0);
    }

    void addFragments(const std::vector<std::string>& texts, std::size_t count) {
        for (std::size_t i = 0; !texts.empty() && i < count; ++i)
            if (const std::string& text = texts[fragments_.below(texts.size())]; !wordsOf(text).empty())
                addText(fragments_.fragmentOf(text));
    }

    void addText(const std::string& text) {
        const LetterText letters(text);
        for (std::size_t i = 0; i < writingCount; ++i)
            letters_[i] += letters.lettersIn(static_cast<Writing>(i));
        NgramExample example{{}, static_cast<std::uint8_t>(languages_.size() - 1)};
        visitNgrams(letters.words(), [&](std::uint64_t feature) { example.features.push_back(feature); });
        if (!example.features.empty()) examples_.push_back(std::move(example));
    }

    // A language is written as a tenth of its letters are.
    void finish() {
        std::uint64_t all = 0;
        for (const std::uint64_t count : letters_)
            all += count;
        for (std::size_t i = 0; i < writingCount; ++i)
            if (letters_[i] * 10 > all) languages_.back().writings |= setOf(static_cast<Writing>(i));
    }

    Fragments fragments_{11};
    std::vector<LanguageRecord> languages_;
    std::vector<NgramExample> examples_;
    std::array<std::uint64_t, writingCount> letters_{};
};

std::int8_t quantised(float weight) {
    const float units = std::round(weight * static_cast<float>(unitsPerNat));
    return static_cast<std::int8_t>(std::clamp(units, -127.0F, 127.0F));
}

/// The weights by bucket; those that come to nothing are left out.
void appendWeights(std::vector<TrainedWeight> weights, ModelFileWriter& file) {
    std::erase_if(weights, [](const TrainedWeight& weight) { return quantised(weight.weight) == 0; });
    const auto keyOf = [](const TrainedWeight& weight) {
        return std::tuple(ngramBucketOf(weight.feature, bucketCount), ngramCheckOf(weight.feature),
                          weight.language, weight.feature);
    };
    std::sort(weights.begin(), weights.end(),
              [&](const TrainedWeight& a, const TrainedWeight& b) { return keyOf(a) < keyOf(b); });
    std::vector<std::uint32_t> starts(bucketCount + 1, 0);
    std::vector<NgramWeight> records;
    for (const TrainedWeight& weight : weights) {
        ++starts[ngramBucketOf(weight.feature, bucketCount) + 1];
        records.push_back({ngramCheckOf(weight.feature), weight.language, quantised(weight.weight)});
    }
    for (std::size_t i = 1; i < starts.size(); ++i)
        starts[i] += starts[i - 1];
    file.append(identificationBuckets, identificationVersion, starts);
    file.append(identificationWeights, identificationVersion, records);
}

} // namespace

Outcome<Done, std::string> trainIdentification(const std::filesystem::path& corpora, ModelFileWriter& file,
                                               std::ostream& log) {
    const auto texts = trainingTexts(corpora);
    if (!texts.succeeded()) return texts.fault();
    const auto samples = readSamples(ownSamples());
    if (!samples.succeeded()) return samples.fault();
    Examples examples;
    for (const LanguageTexts& language : texts.value())
        examples.add(language);
    for (const OwnSample& sample : samples.value())
        examples.add(sample);
    NgramTraining training;
    training.languages = examples.languages().size();
    file.append(identificationLanguages, identificationVersion, examples.languages());
    appendWeights(trainNgrams(examples.take(), training, log), file);
    return Done{};
}

} // namespace lexiform::train
