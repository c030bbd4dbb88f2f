#include "linguistics/segmentation/SegmentationModel.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

/// Reads the sections one after the other; remembers the first fault.
class Sections {
public:
    explicit Sections(const ModelFile& file) : file_(file) {}

    const Decider* classifier(SegmentationSection section, std::optional<LinearClassifier>& place) {
        const auto weights = elements<std::int8_t>(section);
        if (weights.empty()) return nullptr;
        if (!LinearClassifier::isTableSize(weights.size())) {
            complain(section, "has a wrong number of weights");
            return nullptr;
        }
        return &place.emplace(weights);
    }

    WordSet words(SegmentationSection section) {
        const auto hashes = elements<std::uint32_t>(section);
        if (std::is_sorted(hashes.begin(), hashes.end())) return WordSet(hashes);
        complain(section, "is out of order");
        return {};
    }

    PairSet pairs(SegmentationSection section) {
        const auto bits = elements<std::uint8_t>(section);
        if (bits.empty() || bits.size() == PairSet::bytes) return PairSet(bits);
        complain(section, "has a wrong size");
        return {};
    }

    const std::string& fault() const { return fault_; }

private:
    template <typename Value>
    std::span<const Value> elements(SegmentationSection section) {
        const auto id = static_cast<SectionId>(section);
        if (!file_.has(id)) return {};
        const auto read = file_.section<Value>(id, segmentationVersion);
        if (read.succeeded()) return read.value();
        if (fault_.empty()) fault_ = read.fault();
        return {};
    }

    void complain(SegmentationSection section, const char* what) {
        if (fault_.empty())
            fault_ = "section " + std::to_string(static_cast<std::uint32_t>(section)) + " " + what;
    }

    const ModelFile& file_;
    std::string fault_;
};

} // namespace

Outcome<SegmentationModel, std::string> SegmentationModel::over(const ModelFile& file) {
    const auto parts = std::make_shared<Parts>();
    Sections sections(file);
    LearnedSegmentation& learned = parts->learned;
    learned.tokenEnds = sections.classifier(SegmentationSection::tokenEnds, parts->tokenEnds);
    learned.sentenceEnds = sections.classifier(SegmentationSection::sentenceEnds, parts->sentenceEnds);
    learned.spaceJoins = sections.classifier(SegmentationSection::spaceJoins, parts->spaceJoins);
    learned.characters = sections.classifier(SegmentationSection::characters, parts->characters);
    learned.abbreviations = sections.words(SegmentationSection::abbreviations);
    learned.commonWords = sections.words(SegmentationSection::commonWords);
    learned.endings = sections.words(SegmentationSection::endings);
    learned.endingPairs = sections.pairs(SegmentationSection::endingPairs);
    learned.compounds = sections.words(SegmentationSection::compounds);
    learned.strongCompounds = sections.words(SegmentationSection::strongCompounds);
    if (!sections.fault().empty()) return sections.fault();
    return SegmentationModel(parts);
}

} // namespace lexiform::linguistics
