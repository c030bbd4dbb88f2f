#include "linguistics/model/Model.h"
#include "tests/linguistics/AnalysedText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace lexiform::linguistics {
namespace {

using testing::ElementsAre;

std::vector<UniversalPos> classesOf(const std::string& text) {
    std::vector<UniversalPos> result;
    for (const Token& token : analysed(text).tokens())
        if (!isGap(token)) result.push_back(token.pos);
    return result;
}

TEST(Tagging, namesTheClassesOfAPlainSentence) {
    using enum UniversalPos;
    EXPECT_THAT(classesOf("The old dog slept quietly under the table."),
                ElementsAre(DET, ADJ, NOUN, VERB, ADV, ADP, DET, NOUN, PUNCT));
    EXPECT_THAT(classesOf("She couldn't see it, but he could."),
                ElementsAre(PRON, AUX, PART, VERB, PRON, PUNCT, CCONJ, PRON, AUX, PUNCT));
}

TEST(Tagging, tellsClassesOfOneWordByItsNeighbours) {
    EXPECT_EQ(analysed("They watch the birds.").token("watch").pos, UniversalPos::VERB);
    EXPECT_EQ(analysed("My watch has stopped.").token("watch").pos, UniversalPos::NOUN);
}

TEST(Tagging, callsFiguresNumbersInEveryLanguage) {
    EXPECT_EQ(analysed("They sold 350 boats.").token("350").pos, UniversalPos::NUM);
    EXPECT_EQ(analysed("Он купил 350 книг.").token("350").pos, UniversalPos::NUM);
    EXPECT_EQ(analysed("٤٢").token("٤٢").pos, UniversalPos::NUM);
}

TEST(Tagging, callsEmojiSymbolsWhateverStandsAround) {
    const AnalysedText text = analysed("He lived in Lisbon 😀👍🏽 with 🐈 and Ann.");
    for (const char* emoji : {"😀", "👍🏽", "🐈"}) {
        EXPECT_EQ(text.token(emoji).pos, UniversalPos::SYM) << emoji;
        EXPECT_EQ(text.token(emoji).name, NameType::none) << emoji;
    }
}

TEST(Tagging, leavesWordsOfALanguageWithoutAModelWithoutAClass) {
    const AnalysedText text = analysed("Η γάτα κοιμάται στην παλιά καρέκλα!");
    EXPECT_EQ(text.token("γάτα").pos, UniversalPos::X);
    EXPECT_EQ(text.token("γάτα").lemma, "γάτα");
    EXPECT_EQ(text.token("γάτα").language, "el");
    EXPECT_EQ(text.token("!").pos, UniversalPos::PUNCT);
}

TEST(Tagging, tellsTheLanguageOfAWordInAnotherScriptInTheMidstOfASentence) {
    const AnalysedText text = analysed("They call the old bread λαγάνα in that village.");
    EXPECT_EQ(text.token("bread").pos, UniversalPos::NOUN);
    EXPECT_EQ(text.token("λαγάνα").language, "el");
    EXPECT_EQ(text.token("village").language, "en");
}

TEST(Tagging, findsNamesOfSeveralWords) {
    const AnalysedText text =
        analysed("Yesterday Margaret Fielding flew from New York to London with her brother.");
    EXPECT_EQ(text.token("Margaret").name, NameType::person);
    EXPECT_TRUE(text.token("Margaret").startsName);
    EXPECT_EQ(text.token("Fielding").name, NameType::person);
    EXPECT_FALSE(text.token("Fielding").startsName);
    EXPECT_EQ(text.token("New").name, NameType::place);
    EXPECT_EQ(text.token("York").name, NameType::place);
    EXPECT_FALSE(text.token("York").startsName);
    EXPECT_EQ(text.token("London").name, NameType::place);
    EXPECT_EQ(text.token("brother").name, NameType::none);
}

TEST(Tagging, findsOrganizations) {
    const AnalysedText text = analysed("She left the University of Michigan and joined Microsoft in May.");
    EXPECT_EQ(text.token("University").name, NameType::organization);
    EXPECT_EQ(text.token("of").name, NameType::organization);
    EXPECT_EQ(text.token("Microsoft").name, NameType::organization);
}

TEST(Tagging, startsEveryNameAtItsFirstTokenOnly) {
    const AnalysedText text =
        analysed("Tom met Ann in Paris. The Bank of England paid John Smith and Mary Jones.");
    NameType previous = NameType::none;
    for (const Token& token : text.tokens()) {
        if (isGap(token)) continue;
        const bool goesOn = token.name != NameType::none && !token.startsName;
        EXPECT_TRUE(!goesOn || token.name == previous);
        EXPECT_TRUE(!token.startsName || token.name != NameType::none);
        previous = token.name;
    }
}

TEST(Tagging, givesTheSameAnswerEveryTimeAndInEveryThread) {
    const std::string text =
        "Old Mr. Hale, who ran the mill, sold it to Green & Sons in 1987; nobody asked why.";
    const auto expected = classesOf(text);
    std::array<std::vector<UniversalPos>, 3> answers;
    {
        std::vector<std::jthread> threads;
        for (auto& answer : answers)
            threads.emplace_back([&] { answer = classesOf(text); });
    }
    for (const auto& answer : answers)
        EXPECT_EQ(answer, expected);
}

TEST(Tagging, doesNotDependOnWhatTheCacheHolds) {
    const auto model = ModelStore({LEXIFORM_MODELS_DIR}).model("en").value();
    const auto tagger = model->tagger();
    const std::vector<std::string_view> words = {"Nobody", "saw", "the", "saw", "."};
    std::vector<WordLabels> before(words.size()), after(words.size());
    tagger->tag(words, before);
    for (int i = 0; i < 40000; ++i) {
        const std::string word =
            "word" + std::string(1 + static_cast<std::size_t>(i) % 7, 'x') + std::to_string(i);
        const std::vector<std::string_view> one = {word};
        std::vector<WordLabels> label(1);
        tagger->tag(one, label);
    }
    tagger->tag(words, after);
    for (std::size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(before[i].pos, after[i].pos);
}

TEST(Tagging, givesEveryTokenButWhiteSpaceALemma) {
    const AnalysedText text = analysed("The boats were gone, 42 of them.");
    for (const Token& token : text.tokens())
        EXPECT_EQ(token.lemma.has_value(), !isGap(token)) << substring(text.text, token.range);
    EXPECT_EQ(text.token("boats").lemma, "boat");
    EXPECT_EQ(text.token("were").lemma, "be");
    EXPECT_EQ(text.token("42").lemma, "42");
}

} // namespace
} // namespace lexiform::linguistics
