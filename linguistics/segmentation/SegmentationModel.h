#pragma once

#include "base/Outcome.h"
#include "linguistics/file/ModelFile.h"
#include "linguistics/segmentation/LearnedSegmentation.h"
#include "linguistics/segmentation/LinearClassifier.h"

#include <memory>
#include <optional>
#include <string>

namespace lexiform::linguistics {

/// The sections of a model file that tell how a language's text is cut. Each may be absent.
enum class SegmentationSection : std::uint32_t {
    tokenEnds = 64,       ///< i8 weights of the classifier, a power of two of them
    sentenceEnds = 65,    ///< likewise
    spaceJoins = 66,      ///< likewise
    characters = 67,      ///< likewise
    abbreviations = 68,   ///< u32 hashes, ascending
    commonWords = 69,     ///< likewise
    endings = 70,         ///< likewise
    endingPairs = 71,     ///< `PairSet::bytes` bytes: the last two bytes of words that may part, as bits
    compounds = 72,       ///< u32 `pairHash`es, ascending
    strongCompounds = 73, ///< likewise
};

/// The version of these sections: of their layout, and of the features that the weights are for.
inline constexpr std::uint32_t segmentationVersion = 1;

/// What a model file has learnt of its language's tokens and sentences.
class SegmentationModel {
public:
    /// Reads the sections of `file`, whose bytes must outlive the model. A file without any gives a model
    /// that leaves everything to the rules. The fault says in plain English what is wrong with a section.
    [[nodiscard]] static Outcome<SegmentationModel, std::string> over(const ModelFile& file);

    /// What to cut by; lasts as long as the model and its copies do.
    [[nodiscard]] const LearnedSegmentation& learned() const { return parts_->learned; }

private:
    // On the heap, since the deciders are pointed to.
    struct Parts {
        std::optional<LinearClassifier> tokenEnds, sentenceEnds, spaceJoins, characters;
        LearnedSegmentation learned;
    };
    explicit SegmentationModel(std::shared_ptr<const Parts> parts) : parts_(std::move(parts)) {}

    std::shared_ptr<const Parts> parts_;
};

} // namespace lexiform::linguistics
