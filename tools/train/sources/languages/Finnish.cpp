#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inFinnish {
namespace {

using enum linguistics::UniversalPos;

Rules rules() {
    return {
        {form("ettei etten ettet ettemme ettette etteivät") && tagged({VERB}), toTag(SCONJ)},
        {lemma("ei") && tagged({VERB}), toTag(AUX)},
        {form("eikä enkä emmekä etkä ettekä eivätkä"), toTag(AUX)},
        {lemma("olla") && tagged({VERB}) && !formEndsIn("va van vat via vien"), toTag(AUX)},
        {lemmaHolds("#"), toLemmaWithout("#")},
        {lemma("ettäei"), toLemma("että")},
    };
}

} // namespace
} // namespace inFinnish

Recipe finnish() {
    using namespace inFinnish;
    Recipe recipe;
    recipe.training = {
        {.file = "fi_tdt-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
        {.file = "fi_tdt-train.conll2018.conllu", .tagWeight = 1, .lemmaWeight = 1, .rules = rules()},
    };
    recipe.development = {"fi_tdt-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
