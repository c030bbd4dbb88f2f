#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inNorwegian {
namespace {

using enum linguistics::UniversalPos;

Condition withParticiple() {
    return followedWithin(6, tagged({VERB, AUX}) && inflected() && formEndsIn("et t d dd tt"),
                          tagged({PUNCT, SCONJ}));
}

Rules auxiliaries() {
    const Condition toHave = form("har hadde ha hatt");
    const Condition toBecome = form("blir ble bli blitt");
    return {
        {(toHave || toBecome || form("får få fikk fått")) && withParticiple(), toTag(AUX)},
        {(toHave || toBecome) && !withParticiple(), toTag(VERB)},
    };
}

// "som" stands before a clause, or compares with what is no clause.
Rules comparison() {
    const Condition clause = followedWithin(8, tagged({VERB, AUX}), tagged({PUNCT, CCONJ}));
    const Condition nearClause = followedWithin(5, tagged({VERB, AUX}), tagged({PUNCT, CCONJ, ADP, SCONJ}));
    return {
        {form("som") && tagged({PRON}), toTag(SCONJ)},
        {form("som") && tagged({SCONJ}) && !clause, toTag(ADP)},
        {form("som") && after(tagged({NOUN, DET})) && !nearClause, toTag(ADP)},
        {form("som") && (after(form("en et om")) || before(form("slik slike samme så"))), toTag(ADP)},
        {form("som") && after(tagged({VERB, AUX, ADV, PART})), toTag(SCONJ)},
    };
}

Rules others() {
    return {
        {form("for på i med av ved til fra") && tagged({CCONJ, SCONJ}), toTag(ADP)},
        {form("om") && tagged({SCONJ}) && after(form("å at")), toTag(ADP)},
        {form("etter uten over") && tagged({SCONJ}), toTag(ADP)},
        {form("opp ned fram") && tagged({ADP}), toTag(ADV)},
        {form("ut inn") && after(tagged({PUNCT, VERB, SCONJ, DET, ADV})), toTag(ADV)},
        {form("hjem hjemme bort frem") && after(tagged({PUNCT, ADP})), toTag(ADV)},
        {form("på av med for til om") && after(tagged({PUNCT})), toTag(ADV)},
        {form("det") && tagged({DET, PRON}), toLemma("den")},
    };
}

} // namespace
} // namespace inNorwegian

Recipe norwegian() {
    using namespace inNorwegian;
    Recipe recipe;
    recipe.training = {
        {.file = "nb_bokmaal-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = joined({auxiliaries(), comparison(), others()})},
        // No Norwegian text has names; its neighbours spell much alike.
        {.file = "../da/names/ddt-train.tsv", .nameWeight = 0.5F},
        {.file = "../sv/names/talbanken-train.tsv", .nameWeight = 0.5F},
    };
    recipe.development = {"nb_bokmaal-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
