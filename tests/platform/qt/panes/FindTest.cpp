#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/SearchedText.h"
#include "platform/qt/panes/findMatches.h"
#include "platform/qt/panes/softBreak.h"

#include <QElapsedTimer>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <string>

namespace lexiform::qt {

namespace {

// What is found in `text`, each as "start-end".
QStringList found(const QString& text, const FindQuery& query) {
    QStringList places;
    const auto outcome = findMatches(text, query);
    if (!outcome.succeeded()) return {outcome.fault().reason};
    for (const TextMatch& match : outcome.value())
        places.append(QStringLiteral("%1-%2").arg(match.start).arg(match.end));
    return places;
}

const FindQuery cat{.wanted = "cat"};

} // namespace

TEST(FindMatches, findsEveryPlaceWhateverTheCase) {
    EXPECT_EQ(found("The Cat and the concatenated cat", cat), (QStringList{"4-7", "19-22", "29-32"}));
    EXPECT_EQ(found("ΣΊΣΥΦΟΣ", {.wanted = "σίσυ"}), QStringList{"0-4"});
}

TEST(FindMatches, heedsCaseWhenAskedTo) {
    EXPECT_EQ(found("Cat cat", {.wanted = "cat", .matchesCase = true}), QStringList{"4-7"});
}

TEST(FindMatches, findsWholeWordsAlone) {
    const FindQuery word{.wanted = "cat", .wholeWord = true};
    EXPECT_EQ(found("cats cat concat cat_1 cat. écat cat́", word), (QStringList{"5-8", "22-25"}));
    EXPECT_EQ(found("\U00010400cat cat", word), QStringList{"6-9"}); // a letter beyond the first plane
}

TEST(FindMatches, countsNoPlaceTwice) {
    EXPECT_EQ(found("aaaaa", {.wanted = "aa"}), (QStringList{"0-2", "2-4"}));
}

TEST(FindMatches, findsNothingForNothing) {
    EXPECT_TRUE(found("cat", {}).isEmpty());
    EXPECT_TRUE(found("cat", {.wanted = "x*", .isRegularExpression = true}).isEmpty());
}

TEST(FindMatches, takesRegularExpressions) {
    EXPECT_EQ(found("cat cot cut", {.wanted = "c[ao]t", .isRegularExpression = true}),
              (QStringList{"0-3", "4-7"}));
    EXPECT_EQ(found("été", {.wanted = "\\w+", .isRegularExpression = true}), QStringList{"0-3"});
    EXPECT_EQ(found("concat cat",
                    {.wanted = "c.t", .matchesCase = true, .wholeWord = true, .isRegularExpression = true}),
              QStringList{"7-10"});
}

TEST(FindMatches, knowsLinesByEveryKindOfEnd) {
    EXPECT_EQ(found("one\r\ntwo\nthree\rfour", {.wanted = "\\w+$", .isRegularExpression = true}),
              (QStringList{"0-3", "5-8", "9-14", "15-19"}));
}

TEST(FindMatches, tellWhereAnExpressionFails) {
    const auto outcome = findMatches("cat", {.wanted = "c(at", .isRegularExpression = true});
    ASSERT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault().offset, 4);
    EXPECT_FALSE(outcome.fault().reason.isEmpty());
}

TEST(SearchedText, leavesOutSoftBreaksAndKeepsLineEnds) {
    InputTextEdit pane;
    const std::string line = std::string(longestPiece - 2, 'x') + "needle" + std::string(3000, 'y');
    pane.replaceText(AttributedText("one\r\ntwo\r\n" + line + "\nthree", Colour::text));
    ASSERT_GT(pane.document()->blockCount(), 4);
    const SearchedText exact(*pane.document(), pane.ownLineEnd());
    EXPECT_EQ(exact.text().toStdString(), pane.text());
    const auto outcome = findMatches(exact.text(), {.wanted = "needle"});
    ASSERT_TRUE(outcome.succeeded());
    ASSERT_EQ(outcome.value().size(), 1);
    QTextCursor cursor(pane.document());
    cursor.setPosition(exact.positionOf(outcome.value().front().start));
    cursor.setPosition(exact.positionOf(outcome.value().front().end), QTextCursor::KeepAnchor);
    EXPECT_EQ(cursor.selectedText().remove(QChar::ParagraphSeparator), QStringLiteral("needle"));
}

TEST(SearchedText, findsThePlaceOfEveryPositionAgain) {
    InputTextEdit pane;
    pane.replaceText(AttributedText("a\r\n\nbc\r\n\r\nd", Colour::text));
    const SearchedText exact(*pane.document(), pane.ownLineEnd());
    for (int position = 0; position < pane.document()->characterCount(); ++position)
        EXPECT_EQ(exact.positionOf(exact.offsetOf(position)), position) << position;
    EXPECT_EQ(exact.positionOf(2), 1); // between the two characters of a line end
    EXPECT_EQ(exact.positionOf(exact.text().size()), pane.document()->characterCount() - 1);
}

TEST(SearchedText, isSearchedWithoutDelayInABook) {
    std::string book;
    while (book.size() < 3'300'000)
        book += "Nobody in the harbour believed that the ships would come back before winter.\n";
    InputTextEdit pane;
    pane.replaceText(AttributedText(book, Colour::text));
    QElapsedTimer timer;
    timer.start();
    const SearchedText exact(*pane.document(), pane.ownLineEnd());
    const qint64 read = timer.restart();
    EXPECT_GT(findMatches(exact.text(), {.wanted = "e"}).value().size(), 300'000U);
    const qint64 literal = timer.restart();
    EXPECT_GT(findMatches(exact.text(), {.wanted = "\\bh\\w+", .isRegularExpression = true}).value().size(),
              40'000U);
    const qint64 expression = timer.restart();
    RecordProperty("read", std::to_string(read));
    RecordProperty("literal", std::to_string(literal));
    RecordProperty("expression", std::to_string(expression));
    EXPECT_LT(read + literal + expression, 3000); // a tenth of it by rights; sanitizers take more
}

} // namespace lexiform::qt
