#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/ChineseScript.h"

namespace lexiform::train::recipes {

namespace inChinese {
namespace {

using enum linguistics::UniversalPos;

// What modifies a noun: a clause or an adjective takes one "的", a noun the other.
Rules modifiers() {
    return {
        {form("的 之") && before(tagged({VERB, ADJ})), toTag(SCONJ)},
        {form("的") && tagged({X}), toTag(PART)},
    };
}

Rules auxiliaries() {
    return {
        {form("是 也是 而是 则是 就是 仍是 还是 被 可以 可 能 能够 要 可能 不会 需 必须 想 敢 应 应该"),
         toTag(AUX)},
        {form("了 着 过") && tagged({PART, X}), toTag(AUX)},
        {form("会") && tagged({VERB}), toTag(AUX)},
        {form("为") && tagged({VERB}) && before(tagged({NOUN, PROPN})), toTag(AUX)},
        {form("将") && tagged({VERB}), toTag(ADP)},
    };
}

// Adverbs that join clauses.
Rules conjunctions() {
    return {{form("也 而 但 并 所 都 亦 还 就 才 并且 则 但是 却 便 甚至 于是 所以 然而 因而 又 且 故 而且 "
                  "可是 先 不过 来") &&
                 tagged({ADV}),
             toTag(SCONJ)}};
}

} // namespace
} // namespace inChinese

Recipe chinese() {
    using namespace inChinese;
    const std::vector<Preparation> script = {simplifiedCharacters(), fullWidthPunctuation()};
    Recipe recipe;
    recipe.training = {
        {.file = "zh_gsd-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .preparations = script,
         .rules = joined({modifiers(), auxiliaries(), conjunctions()})},
        {.file = "names/gsd-train.tsv", .nameWeight = 1, .preparations = script},
    };
    recipe.development = {"zh_gsdsimp-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
