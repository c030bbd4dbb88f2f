#pragma once

#include "tools/train/corpora/Corpus.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace lexiform::train {

using linguistics::NameLabel;
using linguistics::UniversalPos;

/// A token with the annotation that most tests need.
inline GoldToken word(std::string_view form, UniversalPos pos, std::string_view lemma) {
    GoldToken token;
    token.form = form;
    token.pos = pos;
    token.lemma = lemma;
    return token;
}

inline GoldToken named(std::string_view form, NameLabel name) {
    GoldToken token;
    token.form = form;
    token.name = name;
    return token;
}

inline GoldSentence sentence(std::initializer_list<GoldToken> tokens) {
    GoldSentence result;
    result.tokens = tokens;
    return result;
}

/// The parts of speech of a sentence, separated by spaces; "?" for none.
inline std::string tagsOf(const GoldSentence& sentence) {
    std::string tags;
    for (const GoldToken& token : sentence.tokens)
        (tags += tags.empty() ? "" : " ") += token.pos ? nameOf(*token.pos) : "?";
    return tags;
}

inline std::string formsOf(const GoldSentence& sentence) {
    std::string forms;
    for (const GoldToken& token : sentence.tokens)
        (forms += forms.empty() ? "" : " ") += token.form;
    return forms;
}

} // namespace lexiform::train
