#include "tools/train/ModelWriter.h"

#include "linguistics/Features.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>
#include <tuple>

namespace lexiform::train {

namespace {

using namespace linguistics;

// A power of two that leaves a few weights to a bucket.
constexpr std::size_t bucketCount = std::size_t{1} << 16;

/// Lays sections one after the other behind the header.
class FileImage {
public:
    FileImage() : bytes_(sizeof(ModelHeader)) {}

    template <typename Value>
    void append(SectionId id, const std::vector<Value>& values) {
        bytes_.resize((bytes_.size() + sectionAlignment - 1) / sectionAlignment * sectionAlignment);
        const std::size_t size = values.size() * sizeof(Value);
        header_.sections[static_cast<std::size_t>(id) - 1] = {static_cast<std::uint32_t>(id), 0,
                                                              bytes_.size(), size};
        const auto* start = reinterpret_cast<const std::byte*>(values.data());
        bytes_.insert(bytes_.end(), start, start + size);
    }

    std::vector<std::byte> finished(std::string_view language) {
        header_.features = featureVersion;
        header_.fileSize = bytes_.size();
        std::copy_n(language.begin(), std::min(language.size(), header_.language.size() - 1),
                    header_.language.begin());
        std::memcpy(bytes_.data(), &header_, sizeof(header_));
        header_.checksum = checksumOf(bytes_);
        std::memcpy(bytes_.data(), &header_, sizeof(header_));
        return std::move(bytes_);
    }

private:
    ModelHeader header_;
    std::vector<std::byte> bytes_;
};

} // namespace

int ModelWriter::rounded(float value, int limit) {
    return std::clamp(static_cast<int>(std::lround(value)), -limit, limit);
}

void ModelWriter::setLexicon(const Lexicon& lexicon) {
    std::map<std::uint32_t, LexiconEntry> byKey;
    for (const auto& [form, entry] : lexicon)
        byKey.emplace(static_cast<std::uint32_t>(hashOf(form) >> 32), entry);
    for (const auto& [key, entry] : byKey) {
        keys_.push_back(key);
        entries_.push_back(entry);
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

std::vector<std::byte> ModelWriter::bytes() const {
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
    FileImage image;
    image.append(SectionId::lexiconKeys, keys_);
    image.append(SectionId::lexiconEntries, entries_);
    image.append(SectionId::bucketStarts, starts);
    image.append(SectionId::weights, records);
    image.append(SectionId::posTransitions, posTransitions_);
    image.append(SectionId::nameTransitions, nameTransitions_);
    return image.finished(language_);
}

} // namespace lexiform::train
