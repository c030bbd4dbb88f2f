#include "tools/train/sources/languages/Recipes.h"
#include "tools/train/sources/languages/TurkishWords.h"

namespace lexiform::train::recipes {

namespace inTurkish {
namespace {

using enum linguistics::UniversalPos;

// Classes by the word where the schools differ.
Rules words() {
    return {
        {form("da") && tagged({CCONJ}), toTag(ADV)},
        {form("olan olmayan"), toTag(VERB)},
        {formBeginsWith("uçuş"), toTag(NOUN)},
        {form("olarak"), toTag(AUX)},
        {form("var yok") && tagged({ADJ, VERB}), toTag(NOUN)},
        {form("ise idi iken imiş"), both(toTag(AUX), toLemma("i"))},
        {form("ne") && tagged({ADJ, ADV}), toTag(PRON)},
        {form("bütün hangi") && tagged({ADJ}), toTag(DET)},
        {form("kaç"), toTag(NUM)},
        {form("bugün dışarı yarın dün") && tagged({ADV}), toTag(NOUN)},
        {form("içinde tarafından hakkında üzerinde üzerine arasında") && tagged({ADV, ADP}), toTag(NOUN)},
        {form("burada orada buraya oraya buradan oradan") && tagged({ADV, NOUN}), toTag(PRON)},
        {form("işte"), toTag(ADV)},
        {form("çünkü"), toTag(SCONJ)},
        {form("eğer"), toTag(CCONJ)},
        {form("milyon milyar bin yüz") && tagged({NOUN}), toTag(NUM)},
        {form("herkes"), toTag(NOUN)},
        {formEndsIn("inci ıncı uncu üncü") && tagged({ADJ, NOUN}), toTag(NUM)},
        {form("ile") && tagged({ADP, CCONJ}), toTag(CCONJ)},
        {form("türk"), toTag(PROPN)},
        {tagged({PROPN}), toLemmaCasedLikeForm()},
    };
}

// Nouns of place that stand as postpositions and pronouns have the lemma that their other forms have.
Rules places() {
    return {
        {form("içinde içine içinden"), toLemma("iç")},
        {form("tarafından"), toLemma("taraf")},
        {form("hakkında"), toLemma("hak")},
        {form("üzerinde üzerine üzerinden"), toLemma("üzer")},
        {form("arasında arasına arasından"), toLemma("ara")},
        {form("yanında yanına yanından") && tagged({NOUN}), toLemma("yan")},
        {form("burada buraya buradan"), toLemma("bura")},
        {form("orada oraya oradan"), toLemma("ora")},
        {exactForm("..."), toLemma("...")},
    };
}

Rules rules() {
    return joined({words(), places()});
}

} // namespace
} // namespace inTurkish

Recipe turkish() {
    using namespace inTurkish;
    Recipe recipe;
    recipe.training = {
        {.file = "tr_atis-train.conllu",
         .tagWeight = 0.3F,
         .lemmaWeight = 0.3F,
         .preparations = {turkishSplit()},
         .rules = rules()},
        {.file = "tr_framenet-train.conllu",
         .tagWeight = 1,
         .lemmaWeight = 1,
         .hasSpacing = true,
         .preparations = {turkishSplit()},
         .rules = rules()},
        {.file = "tr_tourism-train.salvaged.conllu",
         .tagWeight = 0.15F,
         .preparations = {turkishSplit()},
         .rules = rules()},
        {.file = "tr_tourism-train.salvaged.conllu",
         .tagWeight = 0.3F,
         .lemmaWeight = 0.3F,
         .preparations = {turkishLowerCased(), turkishSplit()},
         .rules = rules()},
        {.file = "names/wiki-train.tsv", .nameWeight = 1},
    };
    recipe.development = {"tr_atis-dev.conllu",  "tr_boun-dev.conllu", "tr_framenet-dev.conllu",
                          "tr_kenet-dev.conllu", "tr_penn-dev.conllu", "tr_tourism-dev.conllu"};
    recipe.openTexts = {"text/modern.txt"};
    return recipe;
}

} // namespace lexiform::train::recipes
