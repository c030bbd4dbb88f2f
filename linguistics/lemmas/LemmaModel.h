#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/lemmas/LemmaFormat.h"
#include "linguistics/lemmas/LemmaRule.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexiform::linguistics {

/// A view of a lemmatizer's rules and weights in a model file's bytes, which must outlive it.
class LemmaModel {
public:
    /// The model in the sections of `file`, once every count and value in them has been checked; else
    /// what is wrong with them, in plain English.
    [[nodiscard]] static Outcome<LemmaModel, std::string> over(const ModelFile& file);

    [[nodiscard]] CaseRules caseRules() const { return caseRules_; }
    [[nodiscard]] std::size_t labelCount() const { return firstRuleLabel + rules_.size(); }
    /// The rule of `label`, from `firstRuleLabel` up.
    [[nodiscard]] const LemmaRule& rule(std::size_t label) const { return rules_[label - firstRuleLabel]; }

    /// Tells `take` each label for which `feature` weighs something, with the weight.
    template <typename Take>
    void forEachWeight(std::uint64_t feature, Take take) const {
        const std::size_t bucket = lemmaBucketOf(feature, bucketStarts_.size() - 1);
        const std::uint32_t check = lemmaCheckOf(feature);
        for (std::uint32_t i = bucketStarts_[bucket]; i < bucketStarts_[bucket + 1]; ++i)
            if (weights_[i].check() == check) take(weights_[i].label(), weights_[i].weight());
    }

private:
    LemmaModel() = default;
    [[nodiscard]] std::string readRules(std::span<const std::uint8_t> bytes);
    [[nodiscard]] std::string faultInWeights() const;

    CaseRules caseRules_ = CaseRules::standard;
    std::vector<LemmaRule> rules_;
    std::span<const std::uint16_t> bucketStarts_;
    std::span<const LemmaWeight> weights_;
};

} // namespace lexiform::linguistics
