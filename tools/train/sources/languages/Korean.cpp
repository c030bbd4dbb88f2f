#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inKorean {
namespace {

using enum linguistics::UniversalPos;

Rules rules() {
    return {
        {form("~ ㎡ ㎞"), toTag(PUNCT)},
        {form("그리고"), toTag(ADV)},
        {form("이라는"), toTag(AUX)},
    };
}

} // namespace
} // namespace inKorean

Recipe korean() {
    using namespace inKorean;
    Recipe recipe;
    recipe.training = {
        {.file = "ko_gsd-train.salvaged.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
    };
    recipe.development = {"ko_gsd-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
