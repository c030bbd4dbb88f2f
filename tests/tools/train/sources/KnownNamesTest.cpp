#include "tools/train/sources/rules/KnownNames.h"
#include "tests/tools/train/GoldWords.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace lexiform::train {
namespace {

constexpr KnownNames names = {.persons = "Finch|Bank of Lead",
                              .places = "Harlow|New Harlow",
                              .organizations = "Red Oar|Bank of Harlow",
                              .others = "May",
                              .givenNames = "Ada|Tom",
                              .titles = "Mr.|President"};

using Words = std::vector<std::pair<std::string, std::string>>;

/// The name labels of words with their Penn tags, or "unknown".
std::string namesOf(const Words& words) {
    Corpus corpus(1);
    for (const auto& [form, tag] : words) {
        GoldToken& token = corpus[0].tokens.emplace_back();
        token.form = form;
        token.finePos = tag;
    }
    namedBy(names)(corpus);
    if (!corpus[0].namesKnown) return "unknown";
    static constexpr const char* spelt[] = {"O", "B-PER", "I-PER", "B-LOC", "I-LOC", "B-ORG", "I-ORG"};
    std::string labels;
    for (const GoldToken& token : corpus[0].tokens)
        labels += (labels.empty() ? "" : " ") + std::string(spelt[static_cast<std::size_t>(token.name)]);
    return labels;
}

TEST(KnownNames, areNamedWhole) {
    EXPECT_EQ(namesOf({{"in", "IN"}, {"New", "NNP"}, {"Harlow", "NNP"}, {"in", "IN"}, {"May", "NNP"}}),
              "O B-LOC I-LOC O O");
}

TEST(KnownNames, reachOverSmallWords) {
    EXPECT_EQ(namesOf({{"Bank", "NNP"}, {"of", "IN"}, {"Harlow", "NNP"}}), "B-ORG I-ORG I-ORG");
}

TEST(KnownNames, leaveTitlesOutside) {
    EXPECT_EQ(namesOf({{"Mr.", "NNP"}, {"Finch", "NNP"}}), "O B-PER");
    EXPECT_EQ(namesOf({{"President", "NNP"}, {"Unheard", "NNP"}}), "O B-PER");
    EXPECT_EQ(namesOf({{"the", "DT"}, {"President", "NNP"}}), "O O");
}

TEST(KnownNames, ofPersonsBeginWithAGivenName) {
    EXPECT_EQ(namesOf({{"Ada", "NNP"}, {"J.", "NNP"}, {"Unheard", "NNP"}}), "B-PER I-PER I-PER");
    EXPECT_EQ(namesOf({{"Tom", "NNP"}}), "B-PER");
}

TEST(KnownNames, areUnknownInASentenceWithAnother) {
    EXPECT_EQ(namesOf({{"Harlow", "NNP"}, {"and", "CC"}, {"Unheard", "NNP"}}), "unknown");
    EXPECT_EQ(namesOf({{"Ada", "NNP"}, {"Harlow", "NNP"}}), "unknown");
    EXPECT_EQ(namesOf({{"Red", "NNP"}, {"Oar", "NNP"}, {"Unheard", "NNP"}}), "unknown");
}

TEST(KnownNames, areNoneWhereNoProperNounIs) {
    EXPECT_EQ(namesOf({{"may", "MD"}, {"go", "VB"}}), "O O");
}

} // namespace
} // namespace lexiform::train
