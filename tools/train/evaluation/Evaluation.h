#pragma once

#include "linguistics/Engine.h"
#include "linguistics/tagging/SequenceModel.h"
#include "tools/train/corpora/Corpus.h"

#include <cstddef>

namespace lexiform::train {

/// How many of a system's spans are right.
struct SpanCount {
    std::size_t right = 0, system = 0, gold = 0;

    /// The harmonic mean of precision and recall, in percent; 0 where nothing is right.
    [[nodiscard]] double f1() const;
};

/// What a model says of the words of an annotated text, cut as they are there.
struct GoldTokenFigures {
    SpanCount pos; ///< of the words that have a part of speech
    SpanCount names;
};

/// What an engine says of the raw text: the span of a token, counted without white space, must be found,
/// and what it is besides.
struct RawTextFigures {
    SpanCount tokens;
    SpanCount sentences; ///< right where both ends are
    SpanCount pos;
    SpanCount lexicalClass; ///< AUX as VERB, PROPN as NOUN, SCONJ as CCONJ, SYM as X
    SpanCount lemmas;       ///< of the words whose lemma is known
    SpanCount names;
};

// Of a contraction that is one token, the part of speech and the lemma of any of its words count.

[[nodiscard]] GoldTokenFigures evaluateTokens(const linguistics::SequenceModel& model, const Corpus& gold);

[[nodiscard]] RawTextFigures evaluateText(const linguistics::Engine& engine, const Corpus& gold);

} // namespace lexiform::train
