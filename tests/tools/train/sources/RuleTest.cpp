#include "tools/train/sources/rules/Rule.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TEST(Rule, changesTheTagOfTheWordsThatItIsFor) {
    GoldSentence text = sentence({word("pode", AUX, "poder"), word("pode", NOUN, "pode")});
    apply({{form("pode") && tagged({AUX}), toTag(VERB)}}, text);
    EXPECT_EQ(tagsOf(text), "VERB NOUN");
}

TEST(Rule, seesWhatEarlierRulesAndEarlierWordsBecame) {
    GoldSentence text = sentence({word("a", X, "a"), word("b", X, "b"), word("c", X, "c")});
    apply({{form("a"), toTag(DET)}, {before(tagged({DET})), toTag(DET)}}, text);
    EXPECT_EQ(tagsOf(text), "DET DET DET");
}

TEST(Rule, changesLemmas) {
    GoldSentence text = sentence({word("il", PRON, "il"), word("Les", DET, "Le"), word("lui", PRON, "x|y")});
    apply({{form("il"), toLemma("lui")},
           {form("les"), toLemmaInLowerCase()},
           {lemmaHolds("|"), toUnknownLemma()}},
          text);
    EXPECT_EQ(text.tokens[0].lemma, "lui");
    EXPECT_EQ(text.tokens[1].lemma, "le");
    EXPECT_FALSE(text.tokens[2].lemma);
}

TEST(Rule, givesALemmaTheFormOrItsCapitals) {
    GoldSentence text = sentence({word("España", PROPN, "españa"), word("ONUs", PROPN, "onu"),
                                  word("Élisa", PROPN, "élise"), word("Dos", NUM, "2")});
    apply({{tagged({PROPN}), toLemmaCasedLikeForm()}, {tagged({NUM}), toLemmaLikeForm()}}, text);
    EXPECT_EQ(text.tokens[0].lemma, "España");
    EXPECT_EQ(text.tokens[1].lemma, "ONU");
    EXPECT_EQ(text.tokens[2].lemma, "Élise");
    EXPECT_EQ(text.tokens[3].lemma, "dos");
}

TEST(Rule, takesAJointOutOfALemmaButLeavesOneThatIsNothingElse) {
    GoldSentence text = sentence({word("afloopt", VERB, "af_lopen"), word("_", PUNCT, "_")});
    apply({{always(), toLemmaWithout("_")}}, text);
    EXPECT_EQ(text.tokens[0].lemma, "aflopen");
    EXPECT_EQ(text.tokens[1].lemma, "_");
}

TEST(Rule, leavesUnknownLemmasUnknown) {
    GoldSentence text = sentence({word("Ann", PROPN, "")});
    text.tokens[0].lemma.reset();
    apply({{always(), toLemmaCasedLikeForm()},
           {always(), toLemmaInLowerCase()},
           {always(), toLemmaWithout("n")}},
          text);
    EXPECT_FALSE(text.tokens[0].lemma);
}

TEST(Rule, beginsANameAfterTheWordThatItTookOut) {
    GoldSentence text =
        sentence({named("Oncle", NameLabel::beginsPerson), named("Jean", NameLabel::insidePerson)});
    apply({{form("oncle"), toNoName()}}, text);
    EXPECT_EQ(text.tokens[0].name, NameLabel::outside);
    EXPECT_EQ(text.tokens[1].name, NameLabel::beginsPerson);
}

TEST(Rule, makesBothOfTwoChanges) {
    GoldSentence text = sentence({word("jusqu'", ADV, "jusqu'")});
    apply({{form("jusqu'"), both(toTag(ADP), toLemma("jusque"))}}, text);
    EXPECT_EQ(tagsOf(text), "ADP");
    EXPECT_EQ(text.tokens[0].lemma, "jusque");
}

} // namespace
} // namespace lexiform::train
