#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inSwedish {
namespace {

using enum linguistics::UniversalPos;

// The supine after "ha" ends in t, as some adjectives made of it do.
Condition withSupine() {
    return followedWithin(6, tagged({VERB, AUX, ADJ}) && inflected() && formEndsIn("t ts"),
                          tagged({PUNCT, SCONJ}));
}

Condition withParticiple() {
    return followedWithin(5, tagged({VERB, ADJ}) && inflected() && formEndsIn("d t da de"),
                          tagged({PUNCT, SCONJ}));
}

Condition withInfinitive() {
    return followedWithin(4, tagged({VERB, AUX}) && formEndsIn("a as") && !inflected(),
                          tagged({PUNCT, SCONJ, ADP}));
}

Condition withToAndInfinitive() {
    return followedWithin(5, form("att"), tagged({PUNCT}));
}

Rules auxiliaries() {
    return {
        {form("har ha hade") && withSupine(), toTag(AUX)},
        {form("har ha hade") && !withSupine(), toTag(VERB)},
        {form("får få fick fått") && tagged({VERB}) && withInfinitive(), toTag(AUX)},
        {lemma("bli") && withParticiple(), toTag(AUX)},
        {form("kommer kom") && !withToAndInfinitive(), toTag(VERB)},
    };
}

Rules lemmas() {
    return {
        {form("den det") && tagged({DET}), toLemma("den")},
        {form("de") && tagged({DET}), toLemma("de")},
        {form("första"), toLemma("första")},
        {form("flera fler flesta") && tagged({ADJ}), toLemma("många")},
        {form("lika") && tagged({ADJ}), toLemma("lik")},
        {form("t.ex."), toLemma("till_exempel")},
        {form("bl.a."), toLemma("bland_annat")},
        {lemma("sån"), toLemma("sådan")},
        {lemma("mycken"), toLemma("mycket")},
    };
}

Rules rules() {
    return joined({auxiliaries(), lemmas(), {{form("samma"), toTag(ADJ)}, {form("dom"), toTag(PRON)}}});
}

} // namespace
} // namespace inSwedish

Recipe swedish() {
    using namespace inSwedish;
    Recipe recipe;
    recipe.training = {
        {.file = "sv_talbanken-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
        {.file = "names/talbanken-train.tsv", .nameWeight = 0.5F},
    };
    recipe.development = {"sv_talbanken-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
