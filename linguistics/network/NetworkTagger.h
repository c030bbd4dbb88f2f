#pragma once

#include "linguistics/network/CandidateDecoder.h"
#include "linguistics/network/NetworkKernels.h"
#include "linguistics/network/NetworkModel.h"
#include "linguistics/network/ProjectionCache.h"
#include "linguistics/tagging/ChainDecoder.h"
#include "linguistics/tagging/SequenceModel.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Labels sentences with a recurrent network. Integers throughout, so that every processor gives the same
/// labels. Not for several threads at once.
class NetworkTagger : public SequenceTagger {
public:
    /// A tagger over `model`, which must outlive it.
    explicit NetworkTagger(const NetworkModel& model, const NetworkKernels& kernels = fastestKernels());

    void tag(std::span<const std::string_view> words, std::span<WordLabels> labels) override;
    [[nodiscard]] LexiconEntry entryOf(std::string_view word) override;

private:
    using NameDecoder = ChainDecoder<nameLabelCount, 8>;

    void setNameTransitions();
    void tagPiece(std::span<const std::string_view> words, std::span<WordLabels> labels);
    void lookUp(std::span<const std::string_view> words);
    void run(std::size_t words);
    void advance(std::size_t word, std::size_t direction);
    void tagPartsOfSpeech(std::span<WordLabels> labels);
    void tagNames(std::span<WordLabels> labels);
    [[nodiscard]] bool holdsNoName() const;

    const NetworkModel& model_;
    const NetworkKernels& kernels_;
    ProjectionCache cache_;
    CandidateDecoder posDecoder_;
    NameDecoder nameDecoder_;
    std::array<NameDecoder::Row, nameLabelCount + 1> nameTransitions_{};
    int certainMargin_ = 0; ///< outside names by this much at every word, a sentence holds none
    // Of the sentence at hand; kept between sentences for their memory only.
    std::vector<std::uint32_t> indices_; ///< of the words, with boundaries on both sides
    std::array<std::int16_t, networkUnits> states_{};
    std::vector<std::array<std::int16_t, networkOutputs>> outputs_;
    std::vector<CandidateDecoder::Scores> scores_;
    std::vector<std::uint8_t> best_;
};

} // namespace lexiform::linguistics
