#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inVietnamese {
namespace {

using enum linguistics::UniversalPos;

Rules rules() {
    return {
        {form("ra lên xuống về qua") && tagged({ADV}), toTag(VERB)},
        {form("lại") && tagged({ADV}) && before(tagged({VERB})), toTag(VERB)},
        {form("sau trước") && tagged({ADP}), toTag(NOUN)},
        {form("hơn"), toTag(ADJ)},
        {form("muốn cần") && after(tagged({VERB})), toTag(AUX)},
        {form("khoảng"), toTag(NOUN)},
        {form("vn hcm"), toTag(PROPN)},
    };
}

} // namespace
} // namespace inVietnamese

Recipe vietnamese() {
    using namespace inVietnamese;
    Recipe recipe;
    recipe.training = {
        {.file = "vi_vtb-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
    };
    recipe.development = {"vi_vtb-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
