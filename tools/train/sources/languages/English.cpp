#include "tools/train/sources/languages/EnglishNames.h"
#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/rules/Preparations.h"

namespace lexiform::train::recipes {

namespace inEnglish {
namespace {

// One lemma for what the treebanks write in two ways.
Rules gumLemmas() {
    return {
        {form("people") && lemma("person"), toLemma("people")},
        {exactForm("...") && lemma("…"), toLemma("...")},
    };
}

// What stands before a name, and whom a country's name makes, is in no name.
Rules noTitlesAndPeoples() {
    const Condition title =
        form("mr mr. mrs mrs. ms ms. miss dr dr. sir lord lady president prime minister senator "
             "sen. rep. gov. governor prof prof. professor king queen prince princess pope "
             "judge justice gen. general capt. captain lt. sgt. col. mayor chancellor secretary");
    const Condition people = form(
        "american americans british english french german germans italian italians spanish russian russians "
        "chinese japanese indian indians iraqi iraqis iranian iranians israeli israelis palestinian "
        "palestinians "
        "arab arabs jew jews jewish muslim muslims christian christians irish scottish welsh canadian "
        "canadians australian australians european europeans african africans asian asians mexican mexicans "
        "turkish turks greek greeks dutch polish ukrainian ukrainians pakistani pakistanis afghan afghans "
        "syrian syrians egyptian egyptians saudi korean koreans brazilian brazilians catholic catholics "
        "protestant islamic roman romans swedish danish norwegian swiss portuguese nigerian kenyan");
    const Condition alone = !after(capitalised() && !outsideNames()) && !before(!outsideNames());
    return {{title && firstOfName() && after(!outsideNames()), toNoName()}, {people && alone, toNoName()}};
}

// "@name" is a handle: the tokeniser tells it, and no name of the text.
Rules tweets() {
    return joined({{{formBeginsWith("@"), toNoName()}}, noTitlesAndPeoples()});
}

} // namespace
} // namespace inEnglish

Recipe english() {
    using namespace inEnglish;
    Recipe recipe;
    recipe.training = {
        {.file = "en_ewt-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .nameWeight = 1,
         .hasSpacing = true,
         .preparations = {namedBy(englishNames())}},
        {.file = "en_gum-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .nameWeight = 1,
         .hasSpacing = true,
         .rules = joined({gumLemmas(), noTitlesAndPeoples()})},
        {.file = "names/wikigold.tsv", .nameWeight = 1.5F, .rules = noTitlesAndPeoples()},
        {.file = "names/wnut17-train.tsv", .nameWeight = 0.7F, .rules = tweets()},
        {.file = "names/btc-tweets.tsv", .nameWeight = 0.5F, .rules = tweets()},
        // Of another scheme's tags: running text of many kinds, and no more.
        {.file = "en_masc-train.penn.conllu"},
    };
    recipe.development = {"en_ewt-dev.conllu", "en_gum-dev.conllu"};
    recipe.openTexts = {"text/novels.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
