#pragma once

#include <array>
#include <string_view>

namespace lexiform {

/// What a tag says of its token. A scheme is a string, compared exactly.
using TagScheme = std::string_view;

inline constexpr TagScheme NLTagSchemeNameTypeOrLexicalClass = "NameTypeOrLexicalClass";
inline constexpr TagScheme NLTagSchemeScript = "Script";
inline constexpr TagScheme NLTagSchemeLanguage = "Language";
inline constexpr TagScheme NLTagSchemeLemma = "Lemma";

/// All of them.
inline constexpr std::array fourSchemes = {NLTagSchemeScript, NLTagSchemeLanguage,
                                           NLTagSchemeNameTypeOrLexicalClass, NLTagSchemeLemma};

} // namespace lexiform
