#pragma once

#include "linguistics/UniversalPos.h"
#include "tools/train/Corpus.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace lexiform::train {

/// Learns from texts that carry both kinds of tag which universal parts of speech a corpus's own tag
/// may stand for, so that texts with its own tags only can be trained on.
class FineTagMap {
public:
    void learn(const Corpus& corpus);

    /// The part of speech of `token`, which has a fine tag: `guess`, a tagger's, where the fine tag
    /// allows it, else the commonest of the word with that tag, else the commonest of the tag.
    [[nodiscard]] linguistics::UniversalPos resolve(const GoldToken& token,
                                                    linguistics::UniversalPos guess) const;

private:
    using Counts = std::array<std::size_t, linguistics::universalPosCount>;

    std::map<std::string, Counts> byTag_;
    std::map<std::pair<std::string, std::string>, Counts> byWordAndTag_;
};

} // namespace lexiform::train
