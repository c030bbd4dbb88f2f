#pragma once

#include "linguistics/tagging/LinearModel.h"
#include "tools/train/corpora/Corpus.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/sources/Source.h"

#include <cstddef>
#include <iosfwd>
#include <vector>

namespace lexiform::train {

/// A linear chain that gives texts parts of speech for others to learn from.
class ChainLabeller {
public:
    /// Trains it on what `sources` has for parts of speech; tells `log` of it.
    ChainLabeller(const LanguageSources& sources, const Lexicon& lexicon, std::ostream& log);

    /// Gives each token its part of speech in the place of any that it has.
    void label(Corpus& corpus) const;

private:
    std::vector<std::byte> bytes_; ///< of the model, which lies over them
    linguistics::LinearModel model_;
};

} // namespace lexiform::train
