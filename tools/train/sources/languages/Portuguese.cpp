#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"

namespace lexiform::train::recipes {

namespace inPortuguese {
namespace {

using enum linguistics::UniversalPos;

Condition infinitive() {
    return tagged({VERB, AUX}) && formEndsIn("ar er ir ôr arem erem irem armos ermos irmos");
}

// Prepositions before an infinitive join clauses.
Rules prepositionsOfClauses() {
    return {
        {form("a de para por em sem até") && tagged({ADP}) &&
             followedWithin(2, infinitive(), !(form("não se o a os as nos lhe") || tagged({ADV}))),
         toTag(SCONJ)},
    };
}

Rules auxiliaries() {
    const Condition verbal = tagged({VERB, AUX});
    const Condition participle =
        tagged({VERB, AUX, ADJ}) && formEndsIn("ado ada ados adas ido ida idos idas to sto ito");
    return {
        {lemma("ser") && tagged({VERB}), toTag(AUX)},
        {form("é são era eram foi foram será serão seria seriam ser sendo sido seja sejam fosse fossem") &&
             tagged({VERB}),
         toTag(AUX)},
        {form("está estão estava estavam esteve estiveram estará estarão estaria estar estando esteja "
              "estejam") &&
             tagged({VERB}) && !after(tagged({ADP, ADV, PUNCT})),
         toTag(AUX)},
        {form("pode podem poderá poderão poderia poderiam podia podiam pôde puderam possa possam poder "
              "deve devem deverá deverão deveria deveriam devia deviam") &&
             tagged({AUX}),
         toTag(VERB)},
        {form("tem têm tinha tinham teria teriam ter tendo tenha tenham teve tiveram terá terão") && verbal,
         toTag(VERB)},
        {form("tem têm tinha tinham teria teriam ter tendo tenha tenham terá terão") && verbal &&
             followedWithin(3, participle, tagged({NOUN, DET, PUNCT})),
         toTag(AUX)},
        {form("vem vêm vinha vinham vai vão ia iam") && tagged({AUX}) && !after(infinitive()), toTag(VERB)},
    };
}

Rules conjunctions() {
    return {
        {form("que porque quando se embora caso pois enquanto como conforme") && tagged({CCONJ}),
         toTag(SCONJ)},
        {form("se") && tagged({PART}), toTag(PRON)},
        {form("onde") && tagged({ADV}), toTag(PRON)},
        {form("entanto") && tagged({ADV}), toTag(NOUN)},
        {form("próprio própria próprios próprias") && tagged({ADJ}), toTag(DET)},
        {form("cento milhão milhões bilhão bilhões") && tagged({NOUN}), toTag(NUM)},
        {form("janeiro fevereiro março abril maio junho julho agosto setembro outubro novembro dezembro "
              "sábado domingo feira segunda-feira terça-feira quarta-feira quinta-feira sexta-feira") &&
             tagged({PROPN}),
         toTag(NOUN)},
        {form("segunda terça quarta quinta sexta") && tagged({PROPN}), toTag(NOUN)},
    };
}

// Tickers are written with $; oil and stocks are seldom read of.
Rules otherSchool() {
    return joined({prepositionsOfClauses(), {{form("onde") && tagged({ADV}), toTag(PRON)}}});
}

Rules web() {
    return joined({prepositionsOfClauses(), auxiliaries(), conjunctions()});
}

// The words of contractions stand apart in the list of names.
Preparation rejoined() {
    return contracted("de o do de a da de os dos de as das em o no em a na em os nos em as nas "
                      "por o pelo por a pela por os pelos por as pelas a o ao a os aos a a à a as às "
                      "de este deste de esta desta de esse desse de essa dessa de ele dele de ela dela "
                      "de eles deles de elas delas em um num em uma numa em este neste em esta nesta "
                      "em esse nesse em essa nessa em ele nele em ela nela de isso disso de isto disto");
}

} // namespace
} // namespace inPortuguese

Recipe portuguese() {
    using namespace inPortuguese;
    Recipe recipe;
    recipe.training = {
        {.file = "pt_bosque-train.conllu", .tagWeight = 1, .lemmaWeight = 1, .hasSpacing = true},
        {.file = "pt_gsd-train.conllu", .tagWeight = 0.5F, .hasSpacing = true, .rules = web()},
        {.file = "pt_petrogold-train.salvaged.conllu",
         .tagWeight = 0.5F,
         .lemmaWeight = 0.5F,
         .hasSpacing = true,
         .rules = otherSchool()},
        {.file = "pt_dantestocks-train.conllu",
         .tagWeight = 0.3F,
         .lemmaWeight = 0.3F,
         .hasSpacing = true,
         .rules = otherSchool()},
        {.file = "names/bosque-train.tsv", .nameWeight = 1, .preparations = {rejoined()}},
    };
    recipe.development = {"pt_bosque-dev.conllu",    "pt_porttinari-dev.conllu",
                          "pt_petrogold-dev.conllu", "pt_dantestocks-dev.conllu",
                          "pt_gsd-dev.conllu",       {"names/bosque-dev.tsv", {rejoined()}}};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
