#pragma once

#include "linguistics/network/NetworkFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lexiform::linguistics {

/// Finds the best sequence of parts of speech by dynamic programming (Viterbi 1967, "Error bounds for
/// convolutional codes") over those that can be in it. A network is sure of most words: another label falls
/// out where it scores less than the highest by more than all transitions around it could make up for, and
/// what is left is the same best sequence at a tenth of the work.
class CandidateDecoder {
public:
    static constexpr std::size_t labels = universalPosCount;
    using Scores = std::array<std::int16_t, networkLabels>;
    /// What it adds to a label's score that another comes before it: by that one, the start of the sentence
    /// last, then by label.
    using Transitions = std::array<std::array<std::int16_t, labels>, labels + 1>;

    explicit CandidateDecoder(const Transitions& transitions);

    /// Sets `best`, one label for each of `scores`; of equally good sequences always the same one.
    void decode(std::span<const Scores> scores, std::span<std::uint8_t> best);

private:
    struct Candidate {
        int total; ///< of the best sequence that ends in it
        std::uint8_t label;
        std::uint8_t before; ///< the place of the candidate before, among those of its word
    };

    void addCandidates(const Scores& scores);
    void connect(std::size_t first, std::size_t middle);

    Transitions transitions_;
    /// What one label can gain over another by the transitions to it and from it: by the other, then by
    /// label.
    std::array<std::array<int, labels>, labels> gains_{};
    std::vector<Candidate> candidates_; ///< of all words; kept between sentences for their memory only
    std::vector<std::size_t> starts_;   ///< where those of each word start, and the end of all
};

} // namespace lexiform::linguistics
