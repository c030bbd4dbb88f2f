#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inCatalan {
namespace {

using enum linguistics::UniversalPos;

Rules rules() {
    return {
        {lemma("haver") && before(form("hi")), toTag(VERB)},
        {form("del dels") && tagged({ADP}), toLemma("de")},
        {form("al als") && tagged({ADP}), toLemma("a")},
        {form("pel pels") && tagged({ADP}), toLemma("per")},
        {form("es s' se 's ho") && tagged({PRON}), toLemma("ell")},
        {form("em m' 'm") && tagged({PRON}), toLemma("jo")},
    };
}

} // namespace
} // namespace inCatalan

Recipe catalan() {
    using namespace inCatalan;
    Recipe recipe;
    recipe.training = {
        {.file = "ca_ancora-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
    };
    recipe.development = {"ca_ancora-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
