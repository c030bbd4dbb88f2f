#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"
#include "tools/train/sources/rules/Splitting.h"

namespace lexiform::train::recipes {

namespace inDutch {
namespace {

using enum linguistics::UniversalPos;

// By its shape: ge- may stand after a separable prefix.
Condition participle() {
    const Condition shape([](Place place) {
        const std::size_t ge = place.lowered().find("ge");
        return ge != std::string::npos && ge + 4 < place.lowered().size();
    });
    return tagged({VERB, AUX}) && inflected() && formEndsIn("d t en") &&
           (shape || formBeginsWith("be ver ont her er over onder"));
}

Condition withParticiple() {
    const Condition clauseEnd = tagged({PUNCT, SCONJ});
    return followedWithin(15, participle(), clauseEnd) || precededWithin(3, participle(), clauseEnd);
}

Condition withInfinitive() {
    const Condition infinitive = tagged({VERB, AUX}) && !inflected();
    return followedWithin(3, infinitive, tagged({PUNCT, SCONJ, ADP})) || after(infinitive);
}

Condition existsThere() {
    const Condition there = form("er");
    return (before(there) || after(there)) && !withParticiple();
}

Rules auxiliaries() {
    return {
        {lemma("worden") && !withParticiple(), toTag(VERB)},
        {lemma("worden") && withParticiple(), toTag(AUX)},
        {lemma("hebben") && !withParticiple() && !withInfinitive(), toTag(VERB)},
        {lemma("hebben") && withParticiple(), toTag(AUX)},
        {lemma("moeten mogen"), toTag(AUX)},
        {lemma("willen laten gaan blijven heten staan") && tagged({AUX}), toTag(VERB)},
        {lemma("zijn") && tagged({AUX}) && existsThere(), toTag(VERB)},
    };
}

Rules numerals() {
    const Condition digits([](Place place) { return place.lowered()[0] <= '9'; });
    return {
        {tagged({NUM}) && formEndsIn("de ste rste"), toTag(ADJ)},
        {tagged({NUM}) && form("eerst"), toTag(ADJ)},
        {tagged({NUM}) && digits && formEndsIn("e ste de"), toTag(ADJ)},
        {form("-") && before(tagged({NUM})) && after(tagged({NUM})), toTag(SYM)},
    };
}

Rules quantities() {
    const Condition more = form("meer minder meest");
    return {
        {more && after(tagged({ADJ})), toTag(ADV)},
        {more && before(form("niet geen")), toTag(ADV)},
        {more && after(tagged({NOUN})), toTag(DET)},
        {form("veel") && after(tagged({NOUN, ADJ})), toTag(DET)},
    };
}

Rules words() {
    return {
        {form("zijn hun mijn haar uw ons onze jouw") && tagged({DET}), toTag(PRON)},
        {form("als") && tagged({ADP, PART}), toTag(SCONJ)},
        {form("dezelfde hetzelfde"), toTag(DET)},
        {form("zowel"), toTag(CCONJ)},
        {form("eerder juist") && tagged({ADV}), toTag(ADJ)},
        {form("wereldoorlog") && capitalised(), toTag(PROPN)},
    };
}

Rules rules() {
    return joined(
        {auxiliaries(), numerals(), quantities(), words(), {{lemmaHolds("_"), toLemmaWithout("_")}}});
}

} // namespace
} // namespace inDutch

Recipe dutch() {
    using namespace inDutch;
    Recipe recipe;
    recipe.training = {
        {.file = "nl_alpino-train.salvaged.conllu", .tagWeight = 1, .lemmaWeight = 1, .rules = rules()},
        {.file = "nl_lassysmall-train.salvaged.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
        {.file = "nl_alpino-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = rules()},
        {.file = "names/europeana.tsv",
         .nameWeight = 0.5F,
         .preparations = {withPunctuationApart(), cutSentences(60)}},
    };
    recipe.development = {"nl_alpino-dev.conllu", "nl_lassysmall-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
