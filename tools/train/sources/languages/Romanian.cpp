#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inRomanian {
namespace {

using enum linguistics::UniversalPos;

Rules rules() {
    const Condition purpose = followedWithin(10, form("să"), tagged({PUNCT}));
    return {
        {lemma("fi") && tagged({VERB}), toTag(AUX)},
        {form("ca") && tagged({ADV}) && purpose, toTag(SCONJ)},
        {form("ca") && tagged({ADV}) && !purpose, toTag(ADP)},
        {form("/ % = + <"), toTag(PUNCT)},
        {form("privind"), toTag(ADP)},
        {tagged({PROPN}), toLemmaCasedLikeForm()},
    };
}

} // namespace
} // namespace inRomanian

Recipe romanian() {
    using namespace inRomanian;
    Recipe recipe;
    recipe.training = {
        {.file = "ro_rrt-train.salvaged.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
        {.file = "ro_rrt-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
    };
    recipe.development = {"ro_rrt-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
