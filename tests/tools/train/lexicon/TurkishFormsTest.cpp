#include "tools/train/lexicon/TurkishForms.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

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

} // namespace
} // namespace lexiform::train
