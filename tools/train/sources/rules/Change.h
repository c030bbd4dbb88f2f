#pragma once

#include "tools/train/corpora/Corpus.h"

#include <functional>
#include <string_view>

namespace lexiform::train {

/// What a rule does to a token. Forms and the number of tokens stay as they are.
using Change = std::function<void(GoldToken&)>;

[[nodiscard]] Change toTag(linguistics::UniversalPos pos);
[[nodiscard]] Change toLemma(std::string_view lemma);
/// The form in lower case becomes the lemma.
[[nodiscard]] Change toLemmaLikeForm();
/// The lemma gets the form's capitals, as far as the two have the same letters.
[[nodiscard]] Change toLemmaCasedLikeForm();
[[nodiscard]] Change toLemmaInLowerCase();
/// The lemma loses every `part`.
[[nodiscard]] Change toLemmaWithout(std::string_view part);
/// The lemma is not to be learned.
[[nodiscard]] Change toUnknownLemma();
/// The word is in no name; what followed it in one begins one.
[[nodiscard]] Change toNoName();
[[nodiscard]] Change toName(linguistics::NameLabel name);
/// Both changes, in this order.
[[nodiscard]] Change both(Change first, Change second);

} // namespace lexiform::train
