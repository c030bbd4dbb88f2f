#pragma once

#include <string_view>

namespace lexiform {

/// The tags of the scheme `NLTagSchemeNameTypeOrLexicalClass`; strings, compared exactly.

inline constexpr std::string_view NLTagNoun = "Noun";
inline constexpr std::string_view NLTagVerb = "Verb";
inline constexpr std::string_view NLTagAdjective = "Adjective";
inline constexpr std::string_view NLTagAdverb = "Adverb";
inline constexpr std::string_view NLTagPronoun = "Pronoun";
inline constexpr std::string_view NLTagDeterminer = "Determiner";
inline constexpr std::string_view NLTagParticle = "Particle";
inline constexpr std::string_view NLTagPreposition = "Preposition";
inline constexpr std::string_view NLTagNumber = "Number";
inline constexpr std::string_view NLTagConjunction = "Conjunction";
inline constexpr std::string_view NLTagInterjection = "Interjection";
inline constexpr std::string_view NLTagClassifier = "Classifier";
inline constexpr std::string_view NLTagIdiom = "Idiom";
inline constexpr std::string_view NLTagOtherWord = "OtherWord";

inline constexpr std::string_view NLTagSentenceTerminator = "SentenceTerminator";
inline constexpr std::string_view NLTagOpenQuote = "OpenQuote";
inline constexpr std::string_view NLTagCloseQuote = "CloseQuote";
inline constexpr std::string_view NLTagOpenParenthesis = "OpenParenthesis";
inline constexpr std::string_view NLTagCloseParenthesis = "CloseParenthesis";
inline constexpr std::string_view NLTagWordJoiner = "WordJoiner";
inline constexpr std::string_view NLTagDash = "Dash";
inline constexpr std::string_view NLTagOtherPunctuation = "Punctuation";
inline constexpr std::string_view NLTagParagraphBreak = "ParagraphBreak";
inline constexpr std::string_view NLTagOtherWhitespace = "Whitespace";

inline constexpr std::string_view NLTagPersonalName = "PersonalName";
inline constexpr std::string_view NLTagPlaceName = "PlaceName";
inline constexpr std::string_view NLTagOrganizationName = "OrganizationName";

} // namespace lexiform
