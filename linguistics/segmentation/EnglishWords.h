#pragma once

#include <cstddef>
#include <string_view>

namespace lexiform::linguistics {

// What English treebanks do with words that spelling joins. All of this compares ASCII letters
// without regard to case.

/// Whether a full stop after `word` belongs to it ("Mr", "etc") whatever follows.
[[nodiscard]] bool isAbbreviation(std::string_view word);
/// Whether a full stop after `word` belongs to it when a number follows ("No. 5", "p. 12").
[[nodiscard]] bool isAbbreviationBeforeNumber(std::string_view word);
/// Whether a full stop after `word` belongs to it unless the sentence ends there ("etc").
[[nodiscard]] bool isAbbreviationInsideSentence(std::string_view word);
/// Whether a capitalised short name of a day ("Mon", "Thurs"), which keeps its full stop.
[[nodiscard]] bool isDayName(std::string_view word);
/// Whether a title or the like, after which a name follows and no sentence starts ("Mr.", "St.").
[[nodiscard]] bool isTitleAbbreviation(std::string_view word);
/// Whether `prefix` keeps its hyphen and the word after it ("non-", "e-").
[[nodiscard]] bool keepsHyphen(std::string_view prefix);
/// Whether a figure and `unit` written as one are two words ("5|km", "8|pm").
[[nodiscard]] bool isUnitAfterFigure(std::string_view unit);
/// Whether a word after a full stop within a chunk ends a host or file name ("com", "doc").
[[nodiscard]] bool endsNetworkName(std::string_view word);
/// The bytes of the first part of a word that is written as one and is two ("can|not", "gon|na",
/// "do|nt"); 0 for any other.
[[nodiscard]] std::size_t firstPartOfContraction(std::string_view word);

/// Whether "its" or "your", which may be "it|s" or "you|r", but not in capitals.
[[nodiscard]] bool mayTellOwner(std::string_view word);
/// Whether a word hardly ever follows "its" and "your" where these tell an owner ("not", "a").
[[nodiscard]] bool isNotOwned(std::string_view word);

} // namespace lexiform::linguistics
