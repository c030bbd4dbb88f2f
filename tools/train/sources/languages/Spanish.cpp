#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"

namespace lexiform::train::recipes {

namespace inSpanish {
namespace {

using enum linguistics::UniversalPos;

Condition participle() {
    return inflected() && tagged({VERB, AUX, ADJ}) &&
           (formEndsIn("ado ada ados adas ido ida idos idas ído ída ídos ídas to ta tos tas") ||
            form("hecho hecha hechos hechas dicho dicha dichos dichas"));
}

Condition infinitive() {
    return tagged({VERB, AUX}) && formEndsIn("ar er ir ír arse erse irse");
}

Condition clauseEnd() {
    return tagged({PUNCT, SCONJ, NOUN, PROPN});
}

// The newspapers' own convention, which the other corpora are brought to.
Rules auxiliaries() {
    const Condition verbal = tagged({VERB, AUX});
    return {
        {lemma("ser haber") && verbal, toTag(AUX)},
        {lemma("poder deber") && verbal, toTag(VERB)},
        {lemma("poder deber") && verbal && followedWithin(4, infinitive(), clauseEnd()), toTag(AUX)},
        {lemma("ir") && verbal, toTag(VERB)},
        {lemma("ir") && verbal && followedWithin(3, infinitive(), clauseEnd()), toTag(AUX)},
        {lemma("estar") && verbal, toTag(AUX)},
        {lemma("estar") && verbal && after(form("en aquí ahí allí cerca lejos dentro fuera sobre con sin")),
         toTag(VERB)},
    };
}

Rules numbersAndDates() {
    return {
        {form("dos tres cuatro cinco seis siete ocho nueve diez once doce trece catorce quince dieciséis "
              "diecisiete dieciocho diecinueve veinte treinta cuarenta cincuenta sesenta setenta ochenta "
              "noventa cien ciento doscientos doscientas trescientos trescientas cuatrocientos quinientos "
              "seiscientos setecientos ochocientos novecientos mil") &&
             tagged({DET, PRON, NOUN, ADJ}),
         toTag(NUM)},
        {form("peseta pesetas euro euros dólar dólares libras marcos") && tagged({NUM}), toTag(NOUN)},
        {form("enero febrero marzo abril mayo junio julio agosto septiembre setiembre octubre noviembre "
              "diciembre lunes martes miércoles jueves viernes sábado domingo") &&
             tagged({PROPN}),
         toTag(NOUN)},
    };
}

Rules smallWords() {
    return {
        {form("lo") && tagged({DET}), toTag(PRON)},
        {exactForm("La El Los Las la el los las") && tagged({PROPN}), toTag(DET)},
        {form("de del") && tagged({PROPN}), toTag(ADP)},
        {form("y") && tagged({PROPN}), toTag(CCONJ)},
        {form("debido") && tagged({VERB}), toTag(ADJ)},
        {form("partir") && tagged({VERB}) && before(form("a")) && after(form("de del")), toTag(NOUN)},
        {form("unos unas") && tagged({DET}) && after(tagged({NUM})), toTag(PRON)},
        {form("sí") && tagged({ADV}) && before(tagged({ADP})), toTag(PRON)},
        {form("sí") && tagged({ADV}), toTag(INTJ)},
    };
}

// The web treebank tags relatives and comparisons by schools of its own.
Rules relatives() {
    const Condition noun = tagged({NOUN, PROPN, PRON, NUM}) || form("lo los las el la");
    return {
        {form("que") && tagged({SCONJ}) && before(noun), toTag(PRON)},
        {form("que") && tagged({SCONJ}) && before(form(",")), toTag(PRON)},
        {form("que") && tagged({SCONJ}) && before(tagged({ADJ})) &&
             !precededWithin(3, form("es era fue más tan menos")),
         toTag(PRON)},
        {form("como") && tagged({ADP, CCONJ, ADV}), toTag(SCONJ)},
        {form("donde") && tagged({ADV, SCONJ}), toTag(PRON)},
        {form("para por") && tagged({SCONJ}), toTag(ADP)},
        {form("mucho") && tagged({PRON}), toTag(ADV)},
    };
}

// Participles without an auxiliary are adjectives.
Rules participles() {
    const Condition auxiliary = lemma("haber ser estar ir quedar tener");
    return {
        {tagged({VERB}) && participle() && !precededWithin(4, auxiliary, tagged({PUNCT, NOUN, PROPN})),
         toTag(ADJ)},
    };
}

Rules lemmas() {
    return {
        {tagged({PROPN}), toLemmaCasedLikeForm()},
        {lemmaHolds("[") || lemmaHolds("?"), toUnknownLemma()},
        {lemmaHolds("_"), toUnknownLemma()},
        {form("del"), toLemma("de")},
        {form("al") && tagged({ADP}), toLemma("a")},
        {form("se lo la los las le les") && tagged({PRON}), toLemma("él")},
        {tagged({NUM}) && formEndsIn("s z e o n l"), toLemmaLikeForm()},
    };
}

Rules newspapers() {
    return joined({auxiliaries(), numbersAndDates(), smallWords(), lemmas()});
}

Rules web() {
    return joined({auxiliaries(), numbersAndDates(), relatives(), participles(), smallWords(), lemmas()});
}

} // namespace
} // namespace inSpanish

Recipe spanish() {
    using namespace inSpanish;
    // Names without a type: the annotation leaves them outside.
    const Preparation whollyNamed = withoutSentencesWith(
        Condition([](Place place) { return place.token().finePos == "np00000" && outsideNames()(place); }));
    Recipe recipe;
    recipe.training = {
        {.file = "es_ancora-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = newspapers()},
        {.file = "es_cess-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .nameWeight = 1,
         .preparations = {whollyNamed},
         .rules = newspapers()},
        {.file = "es_gsd-train.sigmorphon2019.conllu",
         .tagWeight = 0.5F,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = web()},
        {.file = "es_gsd-train.conll2018.conllu", .tagWeight = 0.5F, .lemmaWeight = 1, .rules = web()},
    };
    recipe.development = {"es_ancora-dev.conllu", "es_gsd-dev.conllu", "es_cess-dev.conllu"};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
