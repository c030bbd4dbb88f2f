#include "tools/lexiform-cli/ConcordanceCommand.h"

#include "tests/tools/lexiform-cli/CommandTest.h"

namespace lexiform::cli {
namespace {

class ConcordanceCommand : public CommandTest {
protected:
    int run(const ConcordanceRequest& request) {
        return runWith([&](const auto& engine, std::FILE* outFile, std::FILE* errorsFile) {
            return concordance(request, engine, outFile, errorsFile);
        });
    }
};

const std::string sixWords =
    CommandTest::contentOf(std::string(LEXIFORM_SOURCE_DIR) + "/tests/golden/six-words.concordance.txt");

TEST_F(ConcordanceCommand, printsWhatTheConcordancePaneWouldHold) {
    EXPECT_EQ(run({.files = {file("six.txt", "The cat sat on the mat.")}}), 0);
    EXPECT_EQ(out, sixWords);
}

TEST_F(ConcordanceCommand, makesOneReportOfSeveralFiles) {
    EXPECT_EQ(run({.files = {file("a.txt", "The cat sat"), file("b.txt", "on the mat.")}}), 0);
    EXPECT_EQ(out, sixWords);
}

TEST_F(ConcordanceCommand, givesEachFileItsReportUnderItsNameWhenAsked) {
    const std::string six = file("a.txt", "The cat sat on the mat.");
    const std::string empty = file("b.txt", "");
    EXPECT_EQ(run({.each = true, .files = {six, empty}}), 0);
    EXPECT_EQ(out, six + "\n" + sixWords + "\n" + empty + "\n\nTotal words classified = 0\n\n");
}

TEST_F(ConcordanceCommand, countsWordsUnderTheirOwnFormWhereThereIsNoLemma) {
    EXPECT_EQ(run({.lemmas = true, .files = {file("six.txt", "The cat sat on the mat.")}}), 0);
    EXPECT_NE(out.find("Total words classified = 6\n"), std::string::npos);
}

TEST_F(ConcordanceCommand, leavesOutAFileThatCannotBeReadAndSaysSo) {
    EXPECT_EQ(run({.files = {"/no/such/file", file("six.txt", "The cat sat on the mat.")}}), 1);
    EXPECT_EQ(errors, "lexiform-cli: /no/such/file: No such file or directory\n");
    EXPECT_EQ(out, sixWords);
}

TEST_F(ConcordanceCommand, printsNoReportWhenNoFileCouldBeRead) {
    EXPECT_EQ(run({.files = {"/no/such/file"}}), 1);
    EXPECT_EQ(out, "");
}

} // namespace
} // namespace lexiform::cli
