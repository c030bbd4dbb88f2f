#pragma once

#include "linguistics/segmentation/ChunkAtoms.h"
#include "linguistics/segmentation/FeatureList.h"

namespace lexiform::linguistics {

/// What stands around a chunk.
struct ChunkSurroundings {
    std::uint32_t previous = 0; ///< the hash of the word before it in lower case, 0 for none
    std::uint32_t next = 0;     ///< the same of the word after it
    std::uint32_t nextShape = 0;
};

/// The token that is being put together.
struct OpenToken {
    std::size_t start = 0; ///< the first byte
    std::uint32_t hash = 0, shape = 0;

    void add(const Atom& atom);
};

/// Replaces `features` by those of the question whether `token`, which holds the atom of index `last`,
/// ends there; an atom follows it.
void boundaryFeatures(std::span<const Atom> atoms, std::size_t last, const OpenToken& token,
                      const ChunkSurroundings& around, const LearnedSegmentation& learned,
                      std::string_view paragraph, FeatureList& features);

} // namespace lexiform::linguistics
