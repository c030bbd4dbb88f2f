#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"

namespace lexiform::train::recipes {

namespace inGerman {
namespace {

using enum linguistics::UniversalPos;

Condition infinitive() {
    return tagged({VERB, AUX}) && formEndsIn("en ln rn un") && !formBeginsWith("ge");
}

Condition participle() {
    const Condition withPrefix = formBeginsWith("ge be ver er ent emp zer miss über unter hinter") ||
                                 formEndsIn("iert") || lemmaHolds("ge");
    const Condition separable =
        Condition([](Place place) { return place.lowered().find("ge", 2) != std::string::npos; });
    return tagged({VERB, AUX}) && formEndsIn("t en n") && (withPrefix || separable);
}

Condition clauseEnd() {
    return form(", ; . : ! ? ( ) - –");
}

// A verb form that an auxiliary in the same clause belongs to, after it or right before it.
Condition withInClause(const Condition& verb) {
    return followedWithin(25, verb, clauseEnd()) || before(verb);
}

// The shared tasks' copies have auxiliaries as guesses.
Rules auxiliaries() {
    const Condition verbal = tagged({VERB, AUX});
    return {
        {lemma("sein werden können müssen sollen dürfen") && tagged({VERB}), toTag(AUX)},
        {lemma("haben") && verbal, toTag(VERB)},
        {lemma("haben") && verbal && withInClause(participle()), toTag(AUX)},
        {lemma("wollen mögen") && verbal, toTag(VERB)},
        {lemma("wollen mögen") && verbal && withInClause(infinitive()), toTag(AUX)},
    };
}

// Indefinites and demonstratives are determiners, wherever they stand.
Rules determiners() {
    return {
        {form("alle allen aller alles allem all") && tagged({PRON, ADJ, PROPN}), toTag(DET)},
        {form("andere anderen anderer anderes anderem anders") && tagged({PRON, ADJ}), toTag(DET)},
        {form("viel viele vielen vieler vieles vielem") && tagged({PRON, ADJ}), toTag(DET)},
        {form("jede jeder jedes jeden jedem") && tagged({PRON}), toTag(DET)},
        {form("diese dieser dieses diesen diesem dies") && tagged({PRON}), toTag(DET)},
        {form("solche solcher solches solchen solchem") && tagged({PRON, ADJ}), toTag(DET)},
        {form("meisten") && tagged({PRON, ADJ, NOUN}), toTag(DET)},
        {form("mehr") && tagged({PRON, ADJ}), toTag(DET)},
        {form("deren dessen") && tagged({DET}), toTag(PRON)},
    };
}

Rules smallWords() {
    return {
        {form("aber") && tagged({ADV}), toTag(CCONJ)},
        {form("wie") && tagged({ADP}), toTag(CCONJ)},
        {form("einfach natürlich ganz anders fest lange") && tagged({ADJ}), toTag(ADV)},
        {form("super rund") && tagged({ADV}), toTag(ADJ)},
        {form("paar") && tagged({PRON, NOUN}) && !capitalised(), toTag(ADJ)},
        {form("herr herrn frau dr. prof. st.") && tagged({PROPN}), toTag(NOUN)},
        {form("€ $ %") && tagged({PROPN, NOUN}), toTag(SYM)},
    };
}

Rules lemmas() {
    return {
        {form("sich") && tagged({PRON}), toLemma("sich")},
        {lemma("dies"), toLemma("dieser")},
        {lemma("ander"), toLemma("anderer")},
        {lemma("jed"), toLemma("jeder")},
        {lemma("einig"), toLemma("einige")},
        {lemma("etlich"), toLemma("etliche")},
        {lemma("solch") && tagged({DET}), toLemma("solcher")},
        {lemma("selb") && tagged({DET}), toLemma("selber")},
        {form("das der die dem den des") && lemma("d"), toLemma("der")},
        {form("Sie") && lemma("Sie|sie"), toLemma("sie")},
        {lemmaHolds("|"), toUnknownLemma()},
    };
}

Rules sharedTask() {
    return joined({auxiliaries(), determiners(), smallWords(), lemmas()});
}

// Codes of roads and lines are no places.
Rules withoutCodes() {
    const Condition code = Condition([](Place place) {
        const std::string& form = place.lowered();
        const bool digit = form.find_first_of("0123456789") != std::string::npos;
        return digit && form.size() <= 6;
    });
    return {{code || formBeginsWith("# @"), toNoName()}};
}

} // namespace
} // namespace inGerman

Recipe german() {
    using namespace inGerman;
    // Words inside names have their own part of speech where they have one.
    const Preparation ownClasses = likeElsewhere(PROPN, {NOUN, ADJ, ADP, DET, CCONJ, NUM}, 0.3);
    Recipe recipe;
    recipe.training = {
        {.file = "de_gsd-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .preparations = {ownClasses},
         .rules = sharedTask()},
        {.file = "de_gsd-train.conll2018.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .preparations = {ownClasses},
         .rules = sharedTask()},
        // Chat and comments.
        {.file = "de_empirist-train.conllu",
         .tagWeight = 0.3F,
         .rules = joined({auxiliaries(), determiners(), smallWords()})},
        {.file = "names/germeval14.tsv",
         .nameWeight = 1,
         .preparations = {withoutWords(
             Condition([](Place place) { return place.token().form.find(' ') != std::string::npos; }))}},
        {.file = "names/mobie.tsv",
         .nameWeight = 0.3F,
         .preparations = {everyNth(5)},
         .rules = withoutCodes()},
    };
    recipe.development = {"de_gsd-dev.conllu", "de_empirist-dev.conllu"};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
