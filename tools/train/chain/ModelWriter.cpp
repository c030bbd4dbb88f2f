#include "tools/train/chain/ModelWriter.h"

#include "linguistics/tagging/Features.h"
#include "linguistics/tagging/LinearFormat.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <tuple>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A power of two that leaves a few weights to a bucket.
constexpr std::size_t bucketCount = std::size_t{1} << 16;

// `value` as the nearest integer, no further from zero than `limit`.
int rounded(float value, int limit) {
    return std::clamp(static_cast<int>(std::lround(value)), -limit, limit);
}

} // namespace

void ModelWriter::setLexicon(const Lexicon& lexicon) {
    std::map<std::uint32_t, LexiconEntry> byKey;
    for (const auto& [form, entry] : lexicon)
        byKey.emplace(static_cast<std::uint32_t>(hashOf(form) >> 32), entry);
    for (const auto& [key, entry] : byKey) {
        keys_.push_back(key);
        entries_.push_back(entry);
    }
}

void ModelWriter::addWeights(const FeatureTable& table, const ChainWeights& chain, float scale,
                             std::size_t most) {
    std::vector<Weight> weights;
    for (std::size_t i = 0; i < chain.features().size(); ++i)
        for (std::size_t label = 0; label < ChainWeights::labels; ++label)
            if (const int value = rounded(chain.features()[i][label] * scale, 127); value != 0)
                weights.push_back({table.features()[i], static_cast<std::uint8_t>(label),
                                   static_cast<std::int8_t>(value), importance(value, table.counts()[i])});
    keepMostImportant(weights, most);
}

void ModelWriter::addTransitions(const ChainWeights& chain, float scale) {
    for (const ChainWeights::Transitions& rows : chain.transitions())
        for (const ChainWeights::Row& row : rows) {
            for (const float value : row)
                posTransitions_.push_back(
                    static_cast<std::int16_t>(rounded(value * scale, largestTransition)));
            posTransitions_.resize(posTransitions_.size() + scoreCount - ChainWeights::labels);
        }
}

std::uint64_t ModelWriter::importance(int value, std::uint32_t count) {
    // The square of size times the root of the count, which is a whole number on every processor.
    constexpr std::uint32_t countedUpTo = 200;
    const auto size = static_cast<std::uint64_t>(std::abs(value));
    return size * size * std::min(count, countedUpTo);
}

void ModelWriter::keepMostImportant(std::vector<Weight>& weights, std::size_t most) {
    const auto moreImportant = [](const Weight& a, const Weight& b) { return a.importance > b.importance; };
    // Stable, so that equal weights fall out the same way everywhere.
    if (weights.size() > most) {
        std::stable_sort(weights.begin(), weights.end(), moreImportant);
        weights.resize(most);
    }
    weights_.insert(weights_.end(), weights.begin(), weights.end());
}

std::size_t ModelWriter::bytesWithoutWeights() const {
    constexpr std::size_t posTransitions =
        LexiconBuilder::classCount() * (universalPosCount + 1) * scoreCount * sizeof(std::int16_t);
    constexpr std::size_t headersAndGaps = 1024;
    return keys_.size() * (sizeof(std::uint32_t) + sizeof(LexiconEntry)) +
           (bucketCount + 1) * sizeof(std::uint32_t) + posTransitions + headersAndGaps;
}

void ModelWriter::appendTo(ModelFileWriter& file) const {
    std::vector<Weight> ordered = weights_;
    const auto place = [](const Weight& weight) {
        return std::tuple(bucketOf(weight.feature, bucketCount), checkOf(weight.feature), weight.label);
    };
    std::stable_sort(ordered.begin(), ordered.end(),
                     [&](const Weight& a, const Weight& b) { return place(a) < place(b); });
    std::vector<std::uint32_t> starts(bucketCount + 1, 0);
    std::vector<WeightRecord> records;
    for (const Weight& weight : ordered) {
        ++starts[bucketOf(weight.feature, bucketCount) + 1];
        records.push_back({checkOf(weight.feature), weight.label, weight.value});
    }
    for (std::size_t i = 1; i < starts.size(); ++i)
        starts[i] += starts[i - 1];
    file.append(SectionId::lexiconKeys, featureVersion, keys_);
    file.append(SectionId::lexiconEntries, featureVersion, entries_);
    file.append(SectionId::bucketStarts, featureVersion, starts);
    file.append(SectionId::weights, featureVersion, records);
    file.append(SectionId::posTransitions, featureVersion, posTransitions_);
}

} // namespace lexiform::train
