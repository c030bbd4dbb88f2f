#include "linguistics/tagging/LinearModel.h"

#include "linguistics/file/SectionReader.h"
#include "linguistics/tagging/Features.h"

#include <algorithm>
#include <bit>

namespace lexiform::linguistics {

namespace {

constexpr std::size_t transitionsPerClass = (universalPosCount + 1) * scoreCount;

} // namespace

Outcome<LinearModel, std::string> LinearModel::over(const ModelFile& file) {
    SectionReader reader(file, featureVersion);
    LinearModel model;
    model.lexiconKeys_ = reader.section<std::uint32_t>(SectionId::lexiconKeys);
    model.lexiconEntries_ = reader.section<LexiconEntry>(SectionId::lexiconEntries);
    model.bucketStarts_ = reader.section<std::uint32_t>(SectionId::bucketStarts);
    model.weights_ = reader.section<WeightRecord>(SectionId::weights);
    model.posTransitions_ = reader.section<std::int16_t>(SectionId::posTransitions);
    if (!reader.fault().empty()) return reader.fault();
    for (const std::string& fault : {model.faultInLexicon(), model.faultInWeights()})
        if (!fault.empty()) return fault;
    model.makeFilter();
    return model;
}

void LinearModel::makeFilter() {
    bucketCount_ = bucketStarts_.size() - 1;
    filter_.assign(bucketCount_, 0);
    for (std::size_t bucket = 0; bucket < bucketCount_; ++bucket)
        for (std::uint32_t i = bucketStarts_[bucket]; i < bucketStarts_[bucket + 1]; ++i)
            filter_[bucket] |= std::uint32_t{1} << (weights_[i].check / (65536 / filterShares));
}

std::string LinearModel::faultInLexicon() const {
    if (lexiconKeys_.size() != lexiconEntries_.size()) return "the lexicon has keys without entries";
    if (!std::is_sorted(lexiconKeys_.begin(), lexiconKeys_.end())) return "the lexicon is out of order";
    const std::size_t classes = posTransitions_.size() / transitionsPerClass;
    if (classes == 0 || posTransitions_.size() % transitionsPerClass != 0)
        return "the transitions have a wrong count";
    const bool known = std::all_of(lexiconEntries_.begin(), lexiconEntries_.end(),
                                   [&](const LexiconEntry& entry) { return entry.ambiguity < classes; });
    return known ? "" : "the lexicon names a class that has no transitions";
}

std::string LinearModel::faultInWeights() const {
    if (bucketStarts_.size() < 2 || !std::has_single_bit(bucketStarts_.size() - 1))
        return "the buckets have a wrong count";
    if (bucketStarts_.front() != 0 || bucketStarts_.back() != weights_.size() ||
        !std::is_sorted(bucketStarts_.begin(), bucketStarts_.end()))
        return "the buckets do not cover the weights";
    const auto tooLarge = [](std::int16_t value) {
        return value > largestTransition || value < -largestTransition;
    };
    if (std::any_of(posTransitions_.begin(), posTransitions_.end(), tooLarge))
        return "a transition is too large";
    const bool known = std::all_of(weights_.begin(), weights_.end(),
                                   [](const WeightRecord& record) { return record.label < scoreCount; });
    return known ? "" : "a weight is for no label";
}

LexiconEntry LinearModel::find(std::uint64_t normalHash) const {
    const auto key = static_cast<std::uint32_t>(normalHash >> 32);
    const auto found = std::lower_bound(lexiconKeys_.begin(), lexiconKeys_.end(), key);
    if (found == lexiconKeys_.end() || *found != key) return {};
    return lexiconEntries_[static_cast<std::size_t>(found - lexiconKeys_.begin())];
}

} // namespace lexiform::linguistics
