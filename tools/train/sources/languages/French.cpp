#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"

namespace lexiform::train::recipes {

namespace inFrench {
namespace {

using enum linguistics::UniversalPos;

Condition participle() {
    return (tagged({VERB, AUX}) && inflected() &&
            formEndsIn("é ée és ées i ie is ies u ue us ues û ert erte erts ertes int inte ints intes")) ||
           form("été eu fait faite faits faites dit dite dits dites mis mise mises pris prise prises écrit "
                "écrite écrits écrites mort morte morts mortes né née nés nées");
}

Condition infinitive() {
    return tagged({VERB, AUX}) && !inflected();
}

// The shared tasks' copies have auxiliaries as guesses, and conventions that the treebank has left.
Rules auxiliaries() {
    return {
        {lemma("être") && tagged({VERB}), toTag(AUX)},
        {lemma("avoir") && tagged({VERB, AUX}), toTag(VERB)},
        {lemma("avoir") && tagged({VERB}) &&
             followedWithin(4, participle(), tagged({NOUN, PROPN, DET, NUM, PUNCT, SCONJ})),
         toTag(AUX)},
        {lemma("pouvoir devoir aller falloir venir") && tagged({AUX}), toTag(VERB)},
        {lemma("faire") && tagged({VERB, AUX}), toTag(VERB)},
        {lemma("faire") && tagged({VERB}) && after(infinitive()), toTag(AUX)},
    };
}

Rules smallWords() {
    return {
        {form("y où") && tagged({ADV}), toTag(PRON)},
        {form("tous toutes") && tagged({DET}), toTag(ADJ)},
        {form("tout toute") && tagged({DET}) && after(tagged({DET})), toTag(ADJ)},
        {form("jusqu' jusque") && tagged({ADV}), both(toTag(ADP), toLemma("jusque"))},
        {form("of the and") && tagged({ADP, DET, CCONJ, NOUN}), toTag(X)},
        {form("/") && tagged({PUNCT}), toTag(SYM)},
        {form("c'est-à-dire puis voire") && tagged({ADV}), toTag(CCONJ)},
        {form("premier première premiers premières") && tagged({NUM, NOUN}), toTag(ADJ)},
        {form("dernier") && tagged({NOUN}), toTag(ADJ)},
        {form("peu") && tagged({ADV}) && before(form("un")), toTag(NOUN)},
        {form("nord sud est ouest") && tagged({PROPN}), toTag(NOUN)},
        {form("l'") && tagged({PART}) && after(form("on")), toTag(PRON)},
    };
}

// Personal pronouns have their stressed form for a lemma.
Rules pronounLemmas() {
    return {
        {form("il elle le la l' -il -elle -le -la -lui lui") && tagged({PRON}) && lemma("il elle le lui"),
         toLemma("lui")},
        {form("ils elles les leur -ils -elles -les eux") && tagged({PRON}) && lemma("il elle le lui ils eux"),
         toLemma("eux")},
        {form("se s' soi -s'") && tagged({PRON}) && lemma("se soi"), toLemma("soi")},
        {form("je j' -je me m' moi -moi") && tagged({PRON}), toLemma("moi")},
        {form("tu te t' toi -tu -toi") && tagged({PRON}), toLemma("toi")},
        {form("nous -nous") && tagged({PRON}), toLemma("nous")},
        {form("vous -vous") && tagged({PRON}), toLemma("vous")},
        {form("une") && tagged({NUM}), toLemma("un")},
        {tagged({NUM}) && lemma("Un Deux Trois Quatre Cinq Six Sept Huit Neuf Dix Cent"), toLemmaLikeForm()},
    };
}

// The shared tasks' copies have "a|-t|-il", and particles where the treebank has adverbs.
Preparation wholeInversions() {
    return contracted("-t -il -t-il -t -elle -t-elle -t -on -t-on");
}

Rules inversions() {
    return {
        {form("-t-il -t-elle"), both(toTag(PRON), toLemma("lui"))},
        {form("-t-on"), both(toTag(PRON), toLemma("on"))},
        {form("-y") && tagged({ADV}), toTag(PRON)},
        {form("-là"), both(toTag(ADV), toLemma("là"))},
        {form("-ci"), both(toTag(ADV), toLemma("ci"))},
    };
}

Rules sharedTask() {
    return joined({auxiliaries(), smallWords(), pronounLemmas(), inversions()});
}

// What the derivation of names from mentions took along: no name consists of these.
Rules functionWordsOutsideNames() {
    return {
        {form("vous elle il ils elles j' je tu des ses son sa mon ma mes ton ta nos notre votre vos ce cet "
              "cette "
              "ces le la les l' un une mais et ou oncle tante papa maman roi reine baron baronne comte "
              "comtesse duc duchesse monsieur madame mademoiselle m. mme mlle"),
         toNoName()},
    };
}

} // namespace
} // namespace inFrench

Recipe french() {
    using namespace inFrench;
    Recipe recipe;
    recipe.training = {
        {.file = "fr_sequoia-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .rules = joined({{{form("%") && tagged({NOUN}), toTag(SYM)}}, pronounLemmas()})},
        {.file = "fr_gsd-train.sigmorphon2019.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .preparations = {wholeInversions()},
         .rules = sharedTask()},
        {.file = "fr_gsd-train.conll2018.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .preparations = {wholeInversions()},
         .rules = sharedTask()},
        // Speech, by the same guidelines.
        {.file = "fr_parisstories-train.conllu",
         .tagWeight = 0.5F,
         .lemmaWeight = 0.5F,
         .rules = pronounLemmas()},
        {.file = "fr_rhapsodie-train.conllu",
         .tagWeight = 0.5F,
         .lemmaWeight = 0.5F,
         .rules = pronounLemmas()},
        {.file = "names/europeana.tsv", .nameWeight = 1, .preparations = {cutSentences(60)}},
        {.file = "names/fr-litbank.tsv", .nameWeight = 0.5F, .rules = functionWordsOutsideNames()},
    };
    recipe.development = {"fr_gsd-dev.conllu", "fr_sequoia-dev.conllu", "fr_rhapsodie-dev.conllu",
                          "fr_parisstories-dev.conllu"};
    recipe.openTexts = {"text/modern.txt", "text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
