#include "tools/train/lexicon/TurkishForms.h"
#include "tests/tools/train/GoldWords.h"
#include "tools/train/silver/TurkishSilver.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using enum linguistics::UniversalPos;

TurkishForms forms() {
    TurkishForms forms;
    forms.addRoot("gitmek", 'v');
    forms.addRoot("başlamak", 'v');
    forms.addRoot("kitap", 'n');
    forms.addRoot("büyük", 'j');
    return forms;
}

TEST(TurkishForms, knowWhatSuffixesMakeOfAVerb) {
    EXPECT_EQ(forms().classesOf("gitti"), "f");
    EXPECT_EQ(forms().classesOf("giden"), "p");
    EXPECT_EQ(forms().classesOf("gittiğini"), "p");
    EXPECT_EQ(forms().classesOf("gidip"), "g");
    EXPECT_EQ(forms().classesOf("başlıyor"), "f");
}

TEST(TurkishForms, knowWhatSuffixesMakeOfANoun) {
    EXPECT_EQ(forms().classesOf("kitap"), "n");
    EXPECT_EQ(forms().classesOf("kitabı"), "i");
    EXPECT_EQ(forms().classesOf("kitaplardan"), "i");
    EXPECT_EQ(forms().classesOf("büyüktü"), "k");
}

TEST(TurkishForms, knowNothingOfOtherWords) {
    EXPECT_EQ(forms().classesOf("pencere"), "");
    EXPECT_EQ(forms().classesOf(""), "");
}

TEST(TurkishSilver, correctsWhatDictionaryAndNamesTell) {
    GoldToken ankara = word("Ankara", NOUN, "Ankara");
    ankara.name = NameLabel::beginsPlace;
    Corpus corpus = {sentence({ankara, word("kitaplar", VERB, ""), word("giden", NOUN, ""),
                               word("büyük", NOUN, ""), word("pencere", VERB, ""), word(",", PUNCT, "")})};
    correctTurkishTags(forms(), corpus);
    EXPECT_EQ(tagsOf(corpus[0]), "PROPN NOUN VERB ADJ VERB PUNCT");
}

} // namespace
} // namespace lexiform::train
