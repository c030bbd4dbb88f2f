#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/tagging/LexiconEntry.h"
#include "linguistics/tagging/LinearFormat.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexiform::linguistics {

/// A view of the lexicon and the weights in a model file's bytes, which must outlive it.
class LinearModel {
public:
    /// The model in the sections of `file`, once every count and value in them has been checked; else
    /// what is wrong with them, in plain English.
    [[nodiscard]] static Outcome<LinearModel, std::string> over(const ModelFile& file);

    /// What the lexicon knows of the word whose normal form has this hash; an empty entry if nothing.
    [[nodiscard]] LexiconEntry find(std::uint64_t normalHash) const;

    /// Adds what `feature` weighs to the scores of all labels; `scores` holds `scoreCount`.
    template <typename Score>
    void add(std::uint64_t feature, Score* scores) const {
        const std::size_t bucket = bucketOf(feature, bucketCount_);
        const std::uint16_t check = checkOf(feature);
        if (!mayHold(bucket, check)) return;
        for (std::uint32_t i = bucketStarts_[bucket]; i < bucketStarts_[bucket + 1]; ++i)
            if (weights_[i].check == check)
                scores[weights_[i].label] =
                    static_cast<Score>(scores[weights_[i].label] + weights_[i].weight);
    }

    /// What it adds to a word's scores that `previous` comes before it: `scoreCount` numbers,
    /// one for each part of speech. `previous` may be `universalPosCount`, the start of the sentence.
    [[nodiscard]] const std::int16_t* posTransition(std::uint8_t ambiguity, std::size_t previous) const {
        return posTransitions_.data() + (ambiguity * (universalPosCount + 1) + previous) * scoreCount;
    }

private:
    LinearModel() = default;

    // Most features that are asked for have no weights. A bit for each share of a bucket tells so
    // without a look at the bucket, which is seldom in the processor's cache.
    static constexpr std::size_t filterShares = 32;
    [[nodiscard]] bool mayHold(std::size_t bucket, std::uint16_t check) const {
        return (filter_[bucket] >> (check / (65536 / filterShares)) & 1U) != 0;
    }
    void makeFilter();

    [[nodiscard]] std::string faultInLexicon() const;
    [[nodiscard]] std::string faultInWeights() const;

    std::span<const std::uint32_t> lexiconKeys_;
    std::span<const LexiconEntry> lexiconEntries_;
    std::span<const std::uint32_t> bucketStarts_;
    std::size_t bucketCount_ = 0;
    std::vector<std::uint32_t> filter_; ///< one word of `filterShares` bits per bucket
    std::span<const WeightRecord> weights_;
    std::span<const std::int16_t> posTransitions_;
};

} // namespace lexiform::linguistics
