#include "tools/train/sources/languages/Recipes.h"

#include "linguistics/text/Utf8.h"
#include "tools/train/sources/languages/RussianCompounds.h"

#include <algorithm>

namespace lexiform::train::recipes {

namespace inRussian {
namespace {

using enum linguistics::UniversalPos;

using linguistics::codePointAt;

bool isLatin(char32_t value) {
    return (value >= 'A' && value <= 'Z') || (value >= 'a' && value <= 'z') ||
           (value >= 0xC0 && value <= 0x24F);
}

// Two or more letters, all of them Latin.
bool isLatinWord(std::string_view word) {
    std::size_t letters = 0;
    for (std::size_t at = 0; at < word.size();) {
        const auto point = codePointAt(word, at);
        at += point.length;
        if (isLatin(point.value))
            ++letters;
        else if (point.value != '.' && point.value != '\'' && point.value != '-')
            return false;
    }
    return letters > 1;
}

Condition latin() {
    return Condition([](Place place) { return isLatinWord(place.token().form); });
}

Condition digits() {
    return Condition(
        [](Place place) { return place.lowered().find_first_not_of("0123456789") == std::string::npos; });
}

Condition roman() {
    return Condition(
        [](Place place) { return place.token().form.find_first_not_of("IVXLC") == std::string::npos; });
}

Condition inCapitals() {
    return Condition([](Place place) {
        const std::string& form = place.token().form;
        return std::none_of(form.begin(), form.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    });
}

// The lemma of an abbreviation is the word that it stands for.
Rules abbreviations() {
    return {
        {form("г г. гг гг.") && tagged({NOUN}), toLemma("год")},
        {form("в. вв.") && tagged({NOUN}), toLemma("век")},
        {form("тыс тыс."), toLemma("тысяча")},
        {form("млн млн."), toLemma("миллион")},
        {form("млрд млрд."), toLemma("миллиард")},
        {form("мм") && tagged({NOUN}), toLemma("миллиметр")},
        {form("м") && tagged({NOUN}), toLemma("метр")},
        {form("км") && tagged({NOUN}), toLemma("километр")},
        {form("кг") && tagged({NOUN}), toLemma("килограмм")},
        {form("руб руб.") && tagged({NOUN}), toLemma("рубль")},
        {form("т.") && before(form("и")), toLemma("так")},
        {form("д.") && before(form("т.")), toLemma("далее")},
        {form("др."), toLemma("другой")},
        {form("см.") && tagged({VERB}), toLemma("смотреть")},
    };
}

Rules foreign() {
    return {
        {latin() && inCapitals(), toLemmaCasedLikeForm()},
        {latin() && !roman(), toTag(X)},
        {roman(), both(toTag(ADJ), toLemmaCasedLikeForm())},
        {form("№ + = ° % $ &"), toTag(SYM)},
    };
}

// Full verbs that reprints take for copulas.
Rules auxiliaries() {
    return {{tagged({AUX}) && lemma("являться стать становиться назначить назначать оказаться остаться"),
             toTag(VERB)},
            {tagged({AUX}) && form("это"), toTag(PART)}};
}

Rules numerals() {
    const Condition month = form("января февраля марта апреля мая июня июля августа сентября октября ноября "
                                 "декабря года году год годов годах г.");
    return {
        {digits() && tagged({ADV}) && after(month), toTag(ADJ)},
        {digits() && tagged({ADV}), toTag(NUM)},
    };
}

Rules words() {
    return {
        {form("также") && before(form("а но")), toTag(CCONJ)},
        {form("также") && !before(form("а но")), toTag(PART)},
        {form("однако") && !(before(tagged({PUNCT})) && after(form(","))), toTag(CCONJ)},
        {form("де") && tagged({PROPN, ADV}), toTag(PART)},
        {form("я") && tagged({ADJ}), toTag(PRON)},
        {form("чем") && tagged({ADP}), toTag(SCONJ)},
    };
}

Rules properNouns() {
    return {{tagged({PROPN}), toLemmaCasedLikeForm()}};
}

Rules gsd() {
    return joined({foreign(), auxiliaries(), numerals(), words(), properNouns(), abbreviations()});
}

Rules taiga() {
    return joined({{
                       {latin() && inCapitals(), toLemmaCasedLikeForm()},
                       {latin() && !roman(), toTag(X)},
                       {roman(), both(toTag(ADJ), toLemmaCasedLikeForm())},
                       {form("%"), toLemma("%")},
                       {form("всё") && tagged({PRON, ADV}), toLemma("всё")},
                       {formBeginsWith("@") && tagged({X}), toTag(PROPN)},
                       {lemma("другой сам самый"), toTag(DET)},
                       {tagged({PROPN}), toLemmaCasedLikeForm()},
                   },
                   abbreviations()});
}

// Common nouns in lower case that stand for an organization are no names, unless capitals join them.
Rules commonNounsOutsideNames() {
    const Condition capitalInName = capitalised() && !outsideNames();
    return {{!outsideNames() && !capitalised() && !followedWithin(8, capitalInName, outsideNames()) &&
                 !precededWithin(8, capitalInName, outsideNames()),
             toNoName()}};
}

} // namespace
} // namespace inRussian

Recipe russian() {
    using namespace inRussian;
    Recipe recipe;
    recipe.training = {
        {.file = "ru_taiga-train.salvaged.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = taiga()},
        {.file = "ru_gsd-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .preparations = {russianCompounds()},
         .rules = gsd()},
        {.file = "ru_gsd-train.conll2018.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .preparations = {russianCompounds()},
         .rules = gsd()},
        {.file = "names/factrueval-train.tsv", .nameWeight = 1, .rules = commonNounsOutsideNames()},
    };
    recipe.development = {"ru_gsd-dev.conllu", "ru_poetry-dev.conllu", "ru_taiga-dev.conllu"};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
