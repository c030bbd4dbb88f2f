#include "linguistics/language/NgramModel.h"

#include "linguistics/language/NgramFeatures.h"

#include <algorithm>
#include <bit>

namespace lexiform::linguistics {

namespace {

template <typename Value>
std::string readInto(const ModelFile& file, SectionId id, std::span<const Value>& values) {
    auto section = file.section<Value>(id, identificationVersion);
    if (!section.succeeded()) return section.fault();
    values = section.value();
    return {};
}

bool isCode(const LanguageRecord& record) {
    const auto end = std::find(record.code.begin(), record.code.end(), '\0');
    return end != record.code.begin() && end != record.code.end() &&
           std::all_of(record.code.begin(), end, [](char c) { return c > ' ' && c < 0x7F; });
}

} // namespace

Outcome<NgramModel, std::string> NgramModel::over(const ModelFile& file) {
    NgramModel model;
    for (const std::string& fault : {readInto(file, identificationLanguages, model.languages_),
                                     readInto(file, identificationBuckets, model.bucketStarts_),
                                     readInto(file, identificationWeights, model.weights_)})
        if (!fault.empty()) return fault;
    for (const std::string& fault : {model.faultInLanguages(), model.faultInWeights()})
        if (!fault.empty()) return fault;
    return model;
}

std::string NgramModel::faultInLanguages() const {
    if (languages_.empty() || languages_.size() > mostLanguages) return "the languages have a wrong count";
    return std::all_of(languages_.begin(), languages_.end(), isCode) ? "" : "a language has no code";
}

std::string NgramModel::faultInWeights() const {
    if (bucketStarts_.size() < 2 || !std::has_single_bit(bucketStarts_.size() - 1))
        return "the buckets have a wrong count";
    if (bucketStarts_.front() != 0 || bucketStarts_.back() != weights_.size() ||
        !std::is_sorted(bucketStarts_.begin(), bucketStarts_.end()))
        return "the buckets do not cover the weights";
    const bool known = std::all_of(weights_.begin(), weights_.end(), [&](const NgramWeight& weight) {
        return weight.language < languages_.size();
    });
    return known ? "" : "a weight is for no language";
}

NgramModel::Scores NgramModel::scoresOf(std::u16string_view words) const {
    Scores scores{};
    const std::size_t buckets = bucketStarts_.size() - 1;
    visitNgrams(words, [&](std::uint64_t hash) {
        const std::size_t bucket = ngramBucketOf(hash, buckets);
        const std::uint16_t check = ngramCheckOf(hash);
        for (std::uint32_t at = bucketStarts_[bucket]; at < bucketStarts_[bucket + 1]; ++at)
            if (weights_[at].check == check) scores[weights_[at].language] += weights_[at].weight;
    });
    return scores;
}

} // namespace lexiform::linguistics
