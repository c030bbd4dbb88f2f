#include "platform/linguistics/wordTags.h"

#include "platform/linguistics/LexicalTags.h"

#include <algorithm>

namespace lexiform {

namespace {

using linguistics::Depth;
using linguistics::Token;

using Tag = std::optional<std::string_view>;

Tag unlessEmpty(std::string_view value) {
    return value.empty() ? Tag() : Tag(value);
}

Tag lexicalTag(const Token& token, std::string_view text) {
    return nameTypeOrLexicalClass(token, text);
}
Tag scriptTag(const Token& token, std::string_view /*text*/) {
    return unlessEmpty(token.script);
}
Tag languageTag(const Token& token, std::string_view /*text*/) {
    return unlessEmpty(token.language);
}
Tag lemmaTag(const Token& token, std::string_view /*text*/) {
    return token.lemma;
}

} // namespace

TagOfToken wordTagsUnder(TagScheme scheme) {
    if (scheme == NLTagSchemeNameTypeOrLexicalClass) return lexicalTag;
    if (scheme == NLTagSchemeScript) return scriptTag;
    if (scheme == NLTagSchemeLanguage) return languageTag;
    if (scheme == NLTagSchemeLemma) return lemmaTag;
    return nullptr;
}

linguistics::Depth depthFor(std::span<const TagScheme> schemes) {
    const auto has = [&](TagScheme scheme) {
        return std::find(schemes.begin(), schemes.end(), scheme) != schemes.end();
    };
    if (has(NLTagSchemeLemma)) return Depth::lemmas;
    return has(NLTagSchemeNameTypeOrLexicalClass) ? Depth::classes : Depth::languages;
}

} // namespace lexiform
