#pragma once

#include "linguistics/segmentation/Decider.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace lexiform::linguistics {

/// A set of words as the sorted hashes of their lower-case forms; now and then it holds one too many.
class WordSet {
public:
    WordSet() = default;
    /// A set over `hashes`, ascending, which must outlive it.
    explicit WordSet(std::span<const std::uint32_t> hashes) : hashes_(hashes) {}

    [[nodiscard]] bool holds(std::uint32_t hash) const {
        // The hashes are spread evenly, so that one is found near where its size says.
        std::size_t at = static_cast<std::size_t>(std::uint64_t{hash} * hashes_.size() >> 32);
        for (int step = 0; step < 16; ++step) {
            if (at < hashes_.size() && hashes_[at] < hash) {
                if (++at == hashes_.size() || hashes_[at] > hash) return false;
            } else if (at < hashes_.size() && hashes_[at] > hash) {
                if (at-- == 0 || hashes_[at] < hash) return false;
            } else {
                return at < hashes_.size();
            }
        }
        return std::binary_search(hashes_.begin(), hashes_.end(), hash);
    }
    [[nodiscard]] bool empty() const { return hashes_.empty(); }

private:
    std::span<const std::uint32_t> hashes_;
};

/// A set of pairs of bytes, one bit for several pairs: it may hold more than was put in.
class PairSet {
public:
    static constexpr std::size_t bytes = 1024;

    PairSet() = default;
    /// A set over `bits`, `bytes` of them, which must outlive it.
    explicit PairSet(std::span<const std::uint8_t> bits) : bits_(bits) {}

    [[nodiscard]] static constexpr std::size_t placeOf(char first, char last) {
        return (static_cast<unsigned char>(first) * 37U + static_cast<unsigned char>(last) * 256U) %
               (bytes * 8);
    }
    [[nodiscard]] bool holds(char first, char last) const {
        const std::size_t place = placeOf(first, last);
        return !bits_.empty() && (bits_[place / 8] >> place % 8 & 1) != 0;
    }

private:
    std::span<const std::uint8_t> bits_;
};

/// What has been learnt of a language's tokens and sentences. A decider that is absent leaves its
/// question to the rules. The deciders must outlive it.
struct LearnedSegmentation {
    const Decider* tokenEnds = nullptr;    ///< within a stretch without white space
    const Decider* sentenceEnds = nullptr; ///< between two tokens
    const Decider* spaceJoins = nullptr;   ///< whether a space stands inside a word
    const Decider* characters = nullptr;   ///< whether a word ends between two letters of a joined script
    WordSet abbreviations;                 ///< words that mostly have a full stop after them
    WordSet commonWords;                   ///< frequent words that are written small
    WordSet endings;                       ///< last parts of words that are two tokens
    PairSet endingPairs;                   ///< the last two bytes of such words, a hint to look closer
    WordSet compounds;                     ///< hashes of two syllables that open text writes together often
    WordSet strongCompounds;               ///< those of them that hardly stand apart
};

} // namespace lexiform::linguistics
