#include "tools/train/silver/TurkishSplitting.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

std::string splitWords(std::initializer_list<const char*> forms) {
    TurkishForms dictionary;
    dictionary.addRoot("gelmek", 'v');
    dictionary.addRoot("öğretmen", 'n');
    dictionary.addRoot("nere", 'o');
    GoldSentence words;
    for (const char* form : forms)
        words.tokens.push_back(named(form, NameLabel::outside));
    Corpus corpus = {words};
    splitTurkishWords(dictionary, corpus);
    return formsOf(corpus[0]);
}

TEST(TurkishSplitting, cutsTheCopulaOfNounsAndInfinitives) {
    EXPECT_EQ(splitWords({"öğretmendir", "vardı", "gelmekti"}), "öğretmen dir var dı gelmek ti");
}

TEST(TurkishSplitting, leavesQuestionsAndAdverbsWhole) {
    EXPECT_EQ(splitWords({"mıdır", "miydi", "neredeyse"}), "mıdır miydi neredeyse");
}

TEST(TurkishSplitting, cutsCompoundTensesOnly) {
    EXPECT_EQ(splitWords({"geldi", "gelmişti"}), "geldi gelmiş ti");
}

} // namespace
} // namespace lexiform::train
