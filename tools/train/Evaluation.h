#pragma once

#include "linguistics/Engine.h"
#include "linguistics/Model.h"
#include "tools/train/Corpus.h"

#include <cstddef>
#include <memory>

namespace lexiform::train {

/// How many of a system's spans are right.
struct SpanCount {
    std::size_t right = 0, system = 0, gold = 0;

    /// The harmonic mean of precision and recall, in percent; 0 where nothing is right.
    [[nodiscard]] double f1() const;
};

/// What a model scores on one annotated text.
struct Figures {
    double posOnGoldTokens = 0; ///< percent of words with the right universal part of speech
    SpanCount namesOnGoldTokens;
    SpanCount tokens; ///< these four on the raw text: the spans must be found too
    SpanCount sentences;
    SpanCount pos;
    SpanCount names;
};

/// Tags the words of `gold` as they are cut in it, and its raw text: paragraphs parted by blank lines,
/// sentences in a paragraph by a space.
[[nodiscard]] Figures evaluate(const std::shared_ptr<const linguistics::Model>& model,
                               const linguistics::Engine& engine, const Corpus& gold);

} // namespace lexiform::train
