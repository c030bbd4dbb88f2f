#include "tools/train/sources/rules/Condition.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

/// "She has often sung in Rome."
GoldSentence sung() {
    GoldSentence result =
        sentence({word("She", PRON, "she"), word("has", AUX, "have"), word("often", ADV, "often"),
                  word("sung", VERB, "sing"), word("in", ADP, "in"), word("Rome", PROPN, "Rome")});
    result.tokens[3].features = "Tense=Past|VerbForm=Part";
    return result;
}

bool holds(const Condition& condition, std::size_t at) {
    const GoldSentence text = sung();
    return condition({LookedAt(text), at});
}

TEST(Condition, asksForTheFormWhateverItsCapitals) {
    EXPECT_TRUE(holds(form("he she it"), 0));
    EXPECT_FALSE(holds(form("he it"), 0));
    EXPECT_FALSE(holds(exactForm("she"), 0));
    EXPECT_TRUE(holds(exactForm("She"), 0));
}

TEST(Condition, asksForBothEndsOfTheForm) {
    EXPECT_TRUE(holds(formEndsIn("en ng"), 3));
    EXPECT_TRUE(holds(formBeginsWith("of"), 2));
    EXPECT_FALSE(holds(formEndsIn("sung"), 3)) << "the whole word is no ending";
    EXPECT_FALSE(holds(formBeginsWith("often"), 2));
}

TEST(Condition, asksForTheLemmaAndForInflection) {
    EXPECT_TRUE(holds(lemma("be have"), 1));
    EXPECT_TRUE(holds(lemmaHolds("av"), 1));
    EXPECT_TRUE(holds(inflected(), 1));
    EXPECT_FALSE(holds(inflected(), 0)) << "capitals are no inflection";
}

TEST(Condition, asksForTagsFeaturesAndCapitals) {
    EXPECT_TRUE(holds(tagged({VERB, AUX}), 1));
    EXPECT_FALSE(holds(tagged({NOUN}), 1));
    EXPECT_TRUE(holds(feature("VerbForm=Part"), 3));
    EXPECT_FALSE(holds(feature("VerbForm"), 3));
    EXPECT_TRUE(holds(capitalised(), 5));
    EXPECT_FALSE(holds(capitalised(), 4));
}

TEST(Condition, asksForNames) {
    GoldSentence text = sentence({named("Ann", NameLabel::beginsPerson),
                                  named("Lee", NameLabel::insidePerson), named("sang", NameLabel::outside)});
    const LookedAt looked(text);
    EXPECT_TRUE(firstOfName()({looked, 0}));
    EXPECT_FALSE(firstOfName()({looked, 1}));
    EXPECT_FALSE(outsideNames()({looked, 1}));
    EXPECT_TRUE(outsideNames()({looked, 2}));
}

TEST(Condition, looksAtTheNeighbours) {
    EXPECT_TRUE(holds(before(form("she")), 1));
    EXPECT_FALSE(holds(before(form("she")), 2));
    EXPECT_TRUE(holds(after(form("rome")), 4));
    EXPECT_FALSE(holds(after(always()), 5)) << "nothing follows the last word";
    EXPECT_FALSE(holds(before(always()), 0));
    EXPECT_TRUE(holds(firstInSentence(), 0));
}

TEST(Condition, looksAsFarAsItIsToldAndNoFurtherThanAStop) {
    const Condition participle = feature("VerbForm=Part");
    EXPECT_TRUE(holds(followedWithin(2, participle), 1));
    EXPECT_FALSE(holds(followedWithin(1, participle), 1));
    EXPECT_FALSE(holds(followedWithin(2, participle, tagged({ADV})), 1));
    EXPECT_TRUE(holds(precededWithin(3, form("has")), 4));
    EXPECT_FALSE(holds(precededWithin(3, form("has"), tagged({VERB})), 4));
}

TEST(Condition, joinsByLogic) {
    EXPECT_TRUE(holds(form("has") && tagged({AUX}), 1));
    EXPECT_FALSE(holds(form("has") && tagged({VERB}), 1));
    EXPECT_TRUE(holds(form("had") || tagged({AUX}), 1));
    EXPECT_TRUE(holds(!form("had"), 1));
    EXPECT_FALSE(holds(never() || !always(), 1));
}

} // namespace
} // namespace lexiform::train
