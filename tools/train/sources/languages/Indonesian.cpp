#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Splitting.h"

namespace lexiform::train::recipes {

namespace inIndonesian {
namespace {

using enum linguistics::UniversalPos;

// Pronouns and particles that are written together with the word before them.
std::vector<Preparation> clitics() {
    return {withEndingApart("nya", PRON, {NOUN, VERB, ADP, PROPN, ADJ}),
            withEndingApart("kah", PART, {NOUN, VERB, PRON, ADV, ADJ}),
            withEndingApart("lah", PART, {VERB, PRON, ADJ, ADV}), withEndingApart("ku", PRON, {NOUN}),
            withEndingApart("mu", PRON, {NOUN})};
}

Rules particles() {
    return {
        {form("telah akan dapat bisa sudah harus adalah ialah ingin mampu mungkin"), toTag(AUX)},
        {form("untuk dengan setelah sebelum seperti hingga") && after(tagged({VERB, AUX})), toTag(SCONJ)},
        {form("yaitu"), toTag(ADP)},
        {form("namun tetapi tapi") && tagged({SCONJ}), toTag(CCONJ)},
        {form("namun") && firstInSentence(), toTag(ADV)},
        {form("apa") && tagged({NOUN}), toTag(PRON)},
        {form("mana diri sesuatu") && tagged({NOUN}), toTag(PRON)},
        {form("menuju mulai"), toTag(VERB)},
        {form("sendiri"), toTag(DET)},
        {form("sebagian"), toTag(NOUN)},
        {form("/"), toTag(PUNCT)},
        {form("km") && tagged({SYM}), toTag(NOUN)},
    };
}

Rules numerals() {
    return {
        {form("satu"), toTag(NUM)},
        {form("salah") && after(form("satu")), toTag(ADJ)},
        {form("pertama"), toTag(ADJ)},
        {formBeginsWith("ke") && tagged({NUM, DET}) && before(tagged({NOUN, PROPN})), toTag(ADJ)},
    };
}

} // namespace
} // namespace inIndonesian

Recipe indonesian() {
    using namespace inIndonesian;
    Recipe recipe;
    recipe.training = {
        {.file = "id_gsd-train.salvaged.conllu",
         .tagWeight = 1,
         .preparations = clitics(),
         .rules = joined({particles(), numerals()})},
        // As it is: the engine's own rules part the clitics, and better than they are parted here.
        {.file = "id_gsd-train.salvaged.conllu", .hasSpacing = true},
    };
    recipe.development = {"id_gsd-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
