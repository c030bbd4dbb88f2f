#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inDanish {
namespace {

using enum linguistics::UniversalPos;

Condition participle() {
    return tagged({VERB, AUX}) && inflected() && formEndsIn("et t de");
}

// A participle in the same clause makes an auxiliary of what comes before.
Condition withParticiple() {
    return followedWithin(7, participle(), tagged({PUNCT, SCONJ}));
}

// "der er en bog": the subject follows.
Condition subjectFollows() {
    return followedWithin(3, tagged({DET, NOUN, NUM, PRON}), tagged({PUNCT, ADP}));
}

// To be is a full verb where it says that something exists or where it is.
Rules auxiliaries() {
    const Condition full = form("er var være været") && !withParticiple();
    return {
        {form("er var være været blev bliver blevet har havde have") && tagged({VERB}), toTag(AUX)},
        {form("har havde have blev bliver blive blevet") && !withParticiple(), toTag(VERB)},
        {form("haft"), toTag(VERB)},
        {full && after(form("der at")), toTag(VERB)},
        {full && before(form("der")) && subjectFollows(), toTag(VERB)},
        {full && after(tagged({ADP, PUNCT})), toTag(VERB)},
    };
}

Rules others() {
    const Condition whatThere = before(tagged({DET, PRON})) && after(tagged({PUNCT, NOUN}));
    return {
        {form("der som") && tagged({PART}), toTag(PRON)},
        {form("der") && tagged({ADV}) && !whatThere, toTag(PRON)},
        {form("hans deres hendes") && tagged({PRON}), toTag(DET)},
        {form("meget helt godt") && tagged({ADJ}), toTag(ADV)},
        {lemma("&quot;"), toLemma("\"")},
    };
}

} // namespace
} // namespace inDanish

Recipe danish() {
    using namespace inDanish;
    const Rules rules = joined({auxiliaries(), others()});
    Recipe recipe;
    recipe.training = {
        {.file = "da_ddt-train.salvaged.conllu", .tagWeight = 1, .lemmaWeight = 1, .rules = rules},
        {.file = "da_ddt-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules},
        {.file = "names/ddt-train.tsv", .nameWeight = 1},
    };
    recipe.development = {"da_ddt-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
