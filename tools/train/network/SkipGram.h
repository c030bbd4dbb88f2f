#pragma once

#include "tools/train/network/Matrix.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace lexiform::train {

/// How word vectors are learned.
struct SkipGramOptions {
    std::size_t width = 64;
    int passes = 2;
    float rate = 0.05F; ///< at the start; it falls to nothing
    std::uint32_t seed = 1;
};

/// A vector for each of `words` words of `text`, such that it tells which words stand at each of the two
/// places before and after it from words drawn at random (Ling et al. 2015, "Two/too simple adaptations of
/// word2vec for syntax problems"; negative sampling). Word 0 stands between sentences.
[[nodiscard]] Matrix wordVectors(std::span<const std::uint32_t> text, std::size_t words,
                                 const SkipGramOptions& options);

} // namespace lexiform::train
