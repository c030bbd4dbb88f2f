#include "tools/train/sources/languages/Recipes.h"

namespace lexiform::train::recipes {

namespace inItalian {
namespace {

using enum linguistics::UniversalPos;

// Lemmas begin with a capital in names only.
Rules lowerCaseLemmas() {
    const Condition capitalLemma = Condition([](Place place) {
        const auto& lemma = place.token().lemma;
        return lemma && lowerCased(*lemma) != *lemma;
    });
    return {
        {!tagged({PROPN, X, SYM}) && capitalLemma, toLemmaInLowerCase()},
        {tagged({PUNCT}), toLemmaLikeForm()},
    };
}

// The tweets, brought to the convention of the prose.
Rules tweets() {
    return joined({
        {
            {form("che") && tagged({SCONJ}) && before(tagged({NOUN, PROPN, PRON})), toTag(PRON)},
            {form("quale") && tagged({DET}) && !after(tagged({NOUN, ADJ})), toTag(PRON)},
            {form("grazie") && tagged({INTJ}), toTag(NOUN)},
            {form("ed"), toLemma("ed")},
            {form("ad") && tagged({ADP}), toLemma("ad")},
            {form("la li le") && tagged({PRON}) && lemma("la li le"), toLemma("lo")},
        },
        lowerCaseLemmas(),
    });
}

} // namespace
} // namespace inItalian

Recipe italian() {
    using namespace inItalian;
    Recipe recipe;
    recipe.training = {
        {.file = "it_markit-train.conllu",
         .tagWeight = 2,
         .lemmaWeight = 2,
         .hasSpacing = true,
         .rules = lowerCaseLemmas()},
        {.file = "it_twittiro-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = tweets()},
    };
    // No names are annotated in Italian: its sisters' capitals and gazetteers must do.
    recipe.training.push_back({.file = "../es/es_cess-train.conllu", .nameWeight = 0.5F});
    recipe.training.push_back({.file = "../pt/names/bosque-train.tsv", .nameWeight = 0.5F});
    recipe.development = {"it_markit-dev.conllu", "it_twittiro-dev.conllu"};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
