#include "linguistics/LinearModel.h"

#include "linguistics/Features.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

namespace lexiform::linguistics {

namespace {

constexpr std::size_t transitionsPerClass = (universalPosCount + 1) * scoreCount;

/// Reads a file's header and finds its sections; remembers the first thing that is wrong.
class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    bool readHeader() {
        if constexpr (std::endian::native != std::endian::little)
            return fail("models are for little-endian processors");
        if (bytes_.size() < sizeof(header_)) return fail("the file is too short for a model");
        std::memcpy(&header_, bytes_.data(), sizeof(header_));
        if (header_.magic != modelMagic) return fail("the file is not a model");
        if (header_.version != modelVersion || header_.features != featureVersion)
            return fail("the model is of version " + std::to_string(header_.version) + "." +
                        std::to_string(header_.features) + ", this program reads " +
                        std::to_string(modelVersion) + "." + std::to_string(featureVersion));
        if (header_.fileSize != bytes_.size()) return fail("the file is truncated or has bytes to spare");
        if (header_.checksum != checksumOf(bytes_)) return fail("the file is damaged: its checksum is wrong");
        return true;
    }

    template <typename Value>
    std::span<const Value> section(SectionId id) {
        const SectionRecord& record = header_.sections[static_cast<std::size_t>(id) - 1];
        const bool inside = record.offset >= sizeof(header_) && record.offset <= bytes_.size() &&
                            record.size <= bytes_.size() - record.offset;
        if (record.id != static_cast<std::uint32_t>(id) || !inside || record.offset % sectionAlignment != 0 ||
            record.size % sizeof(Value) != 0) {
            fail("section " + std::to_string(static_cast<std::uint32_t>(id)) + " lies outside the file");
            return {};
        }
        return {reinterpret_cast<const Value*>(bytes_.data() + record.offset), record.size / sizeof(Value)};
    }

    bool readLanguage(std::string& language) {
        const auto end = std::find(header_.language.begin(), header_.language.end(), '\0');
        language.assign(header_.language.begin(), end);
        return !language.empty() || fail("the model names no language");
    }

    bool fail(std::string what) {
        if (fault_.empty()) fault_ = std::move(what);
        return false;
    }
    [[nodiscard]] const std::string& fault() const { return fault_; }

private:
    std::span<const std::byte> bytes_;
    ModelHeader header_;
    std::string fault_;
};

} // namespace

Outcome<LinearModel, std::string> LinearModel::over(std::span<const std::byte> bytes) {
    Reader reader(bytes);
    LinearModel model;
    if (!reader.readHeader() || !reader.readLanguage(model.language_)) return reader.fault();
    model.lexiconKeys_ = reader.section<std::uint32_t>(SectionId::lexiconKeys);
    model.lexiconEntries_ = reader.section<LexiconEntry>(SectionId::lexiconEntries);
    model.bucketStarts_ = reader.section<std::uint32_t>(SectionId::bucketStarts);
    model.weights_ = reader.section<WeightRecord>(SectionId::weights);
    model.posTransitions_ = reader.section<std::int16_t>(SectionId::posTransitions);
    model.nameTransitions_ = reader.section<std::int16_t>(SectionId::nameTransitions);
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
    if (nameTransitions_.size() != nameLabelCount * nameLabelCount)
        return "the name transitions have a wrong count";
    if (bucketStarts_.size() < 2 || !std::has_single_bit(bucketStarts_.size() - 1))
        return "the buckets have a wrong count";
    if (bucketStarts_.front() != 0 || bucketStarts_.back() != weights_.size() ||
        !std::is_sorted(bucketStarts_.begin(), bucketStarts_.end()))
        return "the buckets do not cover the weights";
    const auto tooLarge = [](std::int16_t value) {
        return value > largestTransition || value < -largestTransition;
    };
    if (std::any_of(posTransitions_.begin(), posTransitions_.end(), tooLarge) ||
        std::any_of(nameTransitions_.begin(), nameTransitions_.end(), tooLarge))
        return "a transition is too large";
    const bool known = std::all_of(weights_.begin(), weights_.end(),
                                   [](const WeightRecord& record) { return record.label < labelCount; });
    return known ? "" : "a weight is for no label";
}

LexiconEntry LinearModel::find(std::uint64_t normalHash) const {
    const auto key = static_cast<std::uint32_t>(normalHash >> 32);
    const auto found = std::lower_bound(lexiconKeys_.begin(), lexiconKeys_.end(), key);
    if (found == lexiconKeys_.end() || *found != key) return {};
    return lexiconEntries_[static_cast<std::size_t>(found - lexiconKeys_.begin())];
}

} // namespace lexiform::linguistics
