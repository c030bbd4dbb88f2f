#include "linguistics/Quotations.h"

#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lexiform::linguistics {
namespace {

struct Found {
    std::vector<std::string> quoted{}, around{};
};

std::vector<std::string> textsOf(std::span<const TokenStretch> stretches, std::string_view text,
                                 std::span<const Token> tokens) {
    std::vector<std::string> texts;
    for (const TokenStretch& stretch : stretches) {
        std::string& joined = texts.emplace_back();
        for (const Token& token : stretch.of(tokens))
            joined += substring(text, token.range);
    }
    return texts;
}

Found quotationsIn(const std::string& sentence) {
    const AnalysedText text = analysedPlainly(sentence);
    const std::vector<Token> tokens = text.tokens();
    Quotations quotations;
    quotations.find(sentence, tokens, {0, tokens.size()}, 10);
    return {textsOf(quotations.quoted(), sentence, tokens), textsOf(quotations.around(), sentence, tokens)};
}

TEST(Quotations, areFoundBetweenTheMarksOfAnyLanguage) {
    for (const auto& [open, close] : std::vector<std::pair<std::string, std::string>>{
             {"\"", "\""}, {"“", "”"}, {"„", "“"}, {"«", "»"}, {"»", "«"}, {"「", "」"}}) {
        const Found found = quotationsIn("He said " + open + "wait for me here" + close + " and left.");
        EXPECT_EQ(found.quoted, (std::vector<std::string>{"wait for me here"})) << open;
        EXPECT_EQ(found.around, (std::vector<std::string>{"He said " + open, close + " and left."})) << open;
    }
}

TEST(Quotations, areEachOnTheirOwn) {
    const Found found = quotationsIn("“Wait for me,” he said, “until the evening comes.”");
    EXPECT_EQ(found.quoted, (std::vector<std::string>{"Wait for me,", "until the evening comes."}));
    EXPECT_EQ(found.around, (std::vector<std::string>{"“", "” he said, “", "”"}));
}

TEST(Quotations, areLeftWhereTheyStandWhenTheyAreShort) {
    const Found found = quotationsIn("He said “wait” and left.");
    EXPECT_TRUE(found.quoted.empty());
    EXPECT_EQ(found.around, (std::vector<std::string>{"He said “wait” and left."}));
}

TEST(Quotations, areNoneWithoutAnEnd) {
    const Found found = quotationsIn("He said “wait until the evening comes");
    EXPECT_TRUE(found.quoted.empty());
    EXPECT_EQ(found.around, (std::vector<std::string>{"He said “wait until the evening comes"}));
}

} // namespace
} // namespace lexiform::linguistics
