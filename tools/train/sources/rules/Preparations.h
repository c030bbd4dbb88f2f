#pragma once

#include "tools/train/sources/Recipe.h"

#include <cstddef>
#include <string_view>

namespace lexiform::train {

/// Cuts what stands in one sentence after a full stop that a capital follows, and at the latest after
/// `longest` tokens, but never inside a name.
[[nodiscard]] Preparation cutSentences(std::size_t longest);

/// Leaves out the sentences with a word that is `unwanted`.
[[nodiscard]] Preparation withoutSentencesWith(Condition unwanted);

/// Leaves out the words that are `unwanted`, and the sentences that have no others.
[[nodiscard]] Preparation withoutWords(Condition unwanted);

/// Keeps every `nth` sentence.
[[nodiscard]] Preparation everyNth(std::size_t nth);

/// Gives a word with the tag `from` the commonest of the tags `to` that words of the same form have
/// elsewhere in the corpus, where at least `share` of the form's occurrences have one of these.
[[nodiscard]] Preparation likeElsewhere(linguistics::UniversalPos from, Tags to, double share);

/// Joins a word with the one after it into a contraction, where such two words stand side by side in the
/// list: triples of first, second and joined form, in lower case, separated by single spaces
/// ("de a da em o no"). The contraction has the first word's annotation.
[[nodiscard]] Preparation contracted(std::string_view triples);

} // namespace lexiform::train
