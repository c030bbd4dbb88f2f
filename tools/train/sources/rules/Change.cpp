#include "tools/train/sources/rules/Change.h"

#include "base/Unicode.h"
#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"

namespace lexiform::train {

namespace {

using linguistics::codePointAt;

// Letter by letter from the front: a letter of the form where it is the lemma's in another case.
std::string casedLike(std::string_view form, const std::string& lemma) {
    std::string cased;
    std::size_t at = 0;
    std::size_t formAt = 0;
    while (at < lemma.size() && formAt < form.size()) {
        const auto own = codePointAt(lemma, at);
        const auto wanted = codePointAt(form, formAt);
        const std::string_view letter = form.substr(formAt, wanted.length);
        if (lowerCased(letter) != lowerCased(std::string_view(lemma).substr(at, own.length))) break;
        cased += letter;
        at += own.length;
        formAt += wanted.length;
    }
    return cased + lemma.substr(at);
}

} // namespace

Change toTag(linguistics::UniversalPos pos) {
    return [pos](GoldToken& token) { token.pos = pos; };
}

Change toLemma(std::string_view lemma) {
    return [lemma = std::string(lemma)](GoldToken& token) { token.lemma = lemma; };
}

Change toLemmaLikeForm() {
    return [](GoldToken& token) { token.lemma = lowerCased(token.form); };
}

Change toLemmaCasedLikeForm() {
    return [](GoldToken& token) {
        if (token.lemma) token.lemma = casedLike(token.form, *token.lemma);
    };
}

Change toLemmaInLowerCase() {
    return [](GoldToken& token) {
        if (token.lemma) token.lemma = lowerCased(*token.lemma);
    };
}

Change toLemmaWithout(std::string_view part) {
    return [part = std::string(part)](GoldToken& token) {
        if (!token.lemma || *token.lemma == part) return;
        for (std::size_t at = 0; (at = token.lemma->find(part, at)) != std::string::npos;)
            token.lemma->erase(at, part.size());
    };
}

Change toUnknownLemma() {
    return [](GoldToken& token) { token.lemma.reset(); };
}

Change toNoName() {
    return toName(linguistics::NameLabel::outside);
}

Change toName(linguistics::NameLabel name) {
    return [name](GoldToken& token) { token.name = name; };
}

Change both(Change first, Change second) {
    return [first = std::move(first), second = std::move(second)](GoldToken& token) {
        first(token);
        second(token);
    };
}

} // namespace lexiform::train
