#pragma once

#include <string>
#include <string_view>

namespace lexiform::train {

// What the suffixes after a Turkish root may make of it: regular patterns of their order (Oflazer 1994,
// "Two-level description of Turkish morphology"). All but the first take harmonised suffixes.

/// Suffixes with what vowel harmony and assimilation change made one: A is a or e, I one of the four close
/// vowels, D d or t, C c or ç; and S is ş, G ğ, O o or ö. Takes lower case.
[[nodiscard]] std::string harmonised(std::string_view suffixes);

/// After a noun: number, possessor, case, -ki.
[[nodiscard]] bool isNounInflection(const std::string& suffixes);
/// After a noun: the same, then a copula.
[[nodiscard]] bool isPredicateNoun(const std::string& suffixes);
/// After a verb: voice, negation, ability, then tense and person, and perhaps a copula.
[[nodiscard]] bool isFiniteVerb(const std::string& suffixes);
/// After a verb: what makes it a participle or a verbal noun, perhaps inflected.
[[nodiscard]] bool isParticiple(const std::string& suffixes);
[[nodiscard]] bool isConverb(const std::string& suffixes);

} // namespace lexiform::train
