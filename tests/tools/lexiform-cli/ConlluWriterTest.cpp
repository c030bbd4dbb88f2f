#include "tools/lexiform-cli/ConlluWriter.h"

#include "tests/tools/lexiform-cli/HandMadeText.h"

#include <gtest/gtest.h>

namespace lexiform::cli {
namespace {

using enum linguistics::UniversalPos;

std::string conlluOf(const HandMadeText& made, std::size_t sentencesBefore = 0) {
    ConlluWriter writer;
    Piece piece;
    writer.paragraph(made.paragraph, {made.text}, piece);
    writer.endBlock(piece);
    std::string out;
    piece.appendTo(out, sentencesBefore);
    return out;
}

std::string lastColumn(const std::string& row) {
    return row.substr(row.rfind('\t') + 1);
}

/// The last column of each token.
std::vector<std::string> lastColumns(const HandMadeText& made) {
    std::vector<std::string> columns;
    std::string out = conlluOf(made);
    for (std::size_t end = 0; (end = out.find('\n')) != std::string::npos; out.erase(0, end + 1))
        if (out.find('\t') < end) columns.push_back(lastColumn(out.substr(0, end)));
    return columns;
}

TEST(ConlluWriter, writesSentencesWithTheirTextAndOneTokenALine) {
    HandMadeText made;
    made.word("Cats", NOUN, true).space(" ").word("sleep", VERB).mark(".").space(" ");
    made.word("I", PRON, true).space(" ").word("do", AUX).word("n't", PART).mark(".");
    EXPECT_EQ(conlluOf(made), "# newpar\n"
                              "# sent_id = 1\n"
                              "# text = Cats sleep.\n"
                              "1\tCats\t_\tNOUN\tNoun\t_\t_\t_\t_\tLang=en|Script=Latn\n"
                              "2\tsleep\t_\tVERB\tVerb\t_\t_\t_\t_\tLang=en|Script=Latn|SpaceAfter=No\n"
                              "3\t.\t_\tPUNCT\tSentenceTerminator\t_\t_\t_\t_\t_\n"
                              "\n"
                              "# sent_id = 2\n"
                              "# text = I don't.\n"
                              "1\tI\t_\tPRON\tPronoun\t_\t_\t_\t_\tLang=en|Script=Latn\n"
                              "2\tdo\t_\tAUX\tVerb\t_\t_\t_\t_\tLang=en|Script=Latn|SpaceAfter=No\n"
                              "3\tn't\t_\tPART\tParticle\t_\t_\t_\t_\tLang=en|Script=Latn|SpaceAfter=No\n"
                              "4\t.\t_\tPUNCT\tSentenceTerminator\t_\t_\t_\t_\tSpaceAfter=No\n"
                              "\n");
}

TEST(ConlluWriter, keepsUnusualWhiteSpaceInTheLastColumn) {
    HandMadeText made;
    made.space("\t")
        .add("a", {.startsSentence = true})
        .space("  ")
        .add("b", {})
        .space("\u00A0")
        .add("c", {})
        .lineBreak("\r\n");
    EXPECT_EQ(lastColumns(made), (std::vector<std::string>{"SpacesAfter=\\s\\s|SpacesBefore=\\t",
                                                           "SpacesAfter=\\u00A0", "SpacesAfter=\\r\\n"}));
}

TEST(ConlluWriter, writesASentenceOverSeveralLinesAsOne) {
    HandMadeText made;
    made.word("the", DET, true).lineBreak("\n").word("sea", NOUN).lineBreak("\n").lineBreak("\n");
    EXPECT_NE(conlluOf(made).find("# text = the sea\n"), std::string::npos);
}

TEST(ConlluWriter, writesNothingForATextOfWhiteSpace) {
    HandMadeText made;
    made.space("  ").lineBreak("\n");
    EXPECT_EQ(conlluOf(made), "");
}

TEST(ConlluWriter, writesTheLemmaThatTheEngineGives) {
    HandMadeText made;
    made.add("mice", {.pos = NOUN, .startsSentence = true, .lemma = "mouse"});
    EXPECT_NE(conlluOf(made).find("1\tmice\tmouse\tNOUN\t"), std::string::npos);
}

TEST(ConlluWriter, tellsLanguageAndScriptWhereTheyCanBeTold) {
    HandMadeText made;
    made.add("хлеб", {.startsSentence = true, .script = "Cyrl", .language = "ru"}).space(" ");
    made.add("42", {.script = "Cyrl"}).space(" ");
    EXPECT_EQ(lastColumns(made), (std::vector<std::string>{"Lang=ru|Script=Cyrl", "Script=Cyrl"}));
}

TEST(ConlluWriter, numbersSentencesOnFromThoseBefore) {
    HandMadeText made;
    made.word("Yes", INTJ, true).space(" ").word("No", INTJ, true);
    const std::string out = conlluOf(made, 41);
    EXPECT_NE(out.find("# sent_id = 42\n# text = Yes\n"), std::string::npos);
    EXPECT_NE(out.find("# sent_id = 43\n# text = No\n"), std::string::npos);
}

TEST(ConlluFormat, namesEachOfSeveralTexts) {
    EXPECT_EQ(ConlluFormat().startText("a.txt", true), "# newdoc id = a.txt\n");
    EXPECT_EQ(ConlluFormat().startText("", true), "");
}

} // namespace
} // namespace lexiform::cli
