#pragma once

#include "linguistics/tagging/LexiconEntry.h"
#include "linguistics/text/NameLabel.h"
#include "linguistics/text/UniversalPos.h"

#include <memory>
#include <span>
#include <string_view>

namespace lexiform::linguistics {

/// What a model says of one word of a sentence.
struct WordLabels {
    UniversalPos pos = UniversalPos::X;
    NameLabel name = NameLabel::outside;
};

/// Labels the words of sentences, one sentence at a time. It may keep what it has worked out for words,
/// in bounded memory, but the labels of a sentence depend on nothing but its words. Not for several
/// threads at once.
class SequenceTagger {
public:
    virtual ~SequenceTagger() = default;

    /// Labels each of `words`, which are tokens of one sentence without its white space; `labels` is
    /// as long.
    virtual void tag(std::span<const std::string_view> words, std::span<WordLabels> labels) = 0;

    /// What the model's lexicon knows of `word`.
    [[nodiscard]] virtual LexiconEntry entryOf(std::string_view word) = 0;
};

/// A trained model of whatever kind. Immutable; may be used by several threads at once.
class SequenceModel {
public:
    virtual ~SequenceModel() = default;

    /// A tagger over this model, which must outlive it: one for each thread.
    [[nodiscard]] virtual std::unique_ptr<SequenceTagger> tagger() const = 0;
};

} // namespace lexiform::linguistics
