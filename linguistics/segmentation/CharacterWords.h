#pragma once

#include "linguistics/segmentation/Decider.h"
#include "linguistics/text/Characters.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// Cuts a run of letters that are written without spaces into words as a treebank does, each place
/// between two characters decided by those around it (Xue 2003, "Chinese word segmentation as character
/// tagging") and by where a dictionary ends words.
class CharacterWords {
public:
    CharacterWords(const Characters& characters, const Decider& decider)
        : characters_(characters), decider_(decider) {}

    /// Replaces `ends`, the bytes of `run` where the dictionary ends words, ascending, the last its
    /// length, by those where words end. `offset` is the run's place in the paragraph.
    void revise(std::string_view run, std::size_t offset, std::vector<std::size_t>& ends) const;

private:
    const Characters& characters_;
    const Decider& decider_;
};

} // namespace lexiform::linguistics
