#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/panes/softBreak.h"

#include <QTextBlock>

#include <gtest/gtest.h>

#include <string>

namespace lexiform::qt {

namespace {

AttributedText plain(const std::string& text) {
    return AttributedText(text, Colour::text);
}

std::string repeated(const std::string& piece, std::size_t times) {
    std::string text;
    text.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

} // namespace

class ExactText : public testing::TestWithParam<std::string> {};

TEST_P(ExactText, comesBackFromAnEditablePane) {
    InputTextEdit pane;
    pane.replaceText(plain(GetParam()));
    EXPECT_EQ(pane.text(), GetParam());
}

TEST_P(ExactText, comesBackFromAColouredPaneThatHasBeenPainted) {
    OutputTextEdit pane;
    pane.resize(300, 200);
    pane.replaceText(plain(GetParam()));
    (void)pane.grab();
    EXPECT_EQ(pane.text(), GetParam());
}

TEST_P(ExactText, comesBackWhenAppendedInTwoParts) {
    std::size_t middle = GetParam().size() / 2;
    while (middle > 0 && middle < GetParam().size() && (GetParam()[middle] & 0xC0) == 0x80)
        ++middle;
    OutputTextEdit pane;
    pane.replaceText(plain(GetParam().substr(0, middle)));
    pane.appendText(plain(GetParam().substr(middle)));
    EXPECT_EQ(pane.text(), GetParam());
}

TEST_P(ExactText, comesBackAfterAnotherText) {
    InputTextEdit pane;
    pane.replaceText(plain("one\r\ntwo\rthree\n"));
    pane.replaceText(plain(GetParam()));
    EXPECT_EQ(pane.text(), GetParam());
}

TEST_P(ExactText, goesToTheClipboardWhenAllIsSelected) {
    struct Pane : InputTextEdit {
        using InputTextEdit::exactSelection;
    } pane;
    pane.replaceText(plain(GetParam()));
    pane.selectAll();
    EXPECT_EQ(pane.exactSelection().toStdString(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    HostileTexts, ExactText,
    testing::Values("", "a", "\n", "\r", "\r\n", "\n\n\n", "\r\r\n\n\r", "a\n", "a\r\n", "a\r",
                    "one\ntwo\r\nthree\rfour\xE2\x80\xA9"
                    "five\r\n",
                    "\r\n\r\n\nlast", "\xE2\x80\xA9",
                    "a\xE2\x80\xA8"
                    "b\xE2\x80\xA9"
                    "c\xC2\x85"
                    "d\x0B"
                    "e\x0C"
                    "f",
                    "\xEF\xB7\x90",
                    "a\xEF\xB7\x91"
                    "b\xEF\xB7\x90",
                    std::string("a\0b\0", 4), "\xEF\xBF\xBC", "a\xEF\xBF\xBC\n\xEF\xBF\xBC",
                    "\xEF\xBB\xBF"
                    "mark\n\xEF\xBB\xBF"
                    "mark",
                    "\xEF\xBF\xBE\xEF\xBF\xBF\xF4\x8F\xBF\xBF",
                    "no\xC2\xA0"
                    "break\xE2\x80\xAF!",
                    "\tone\t\ttwo\t", "e\xCC\x81 \xCC\x81 n\xCC\x83", "\xCC\x81",
                    "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7 "
                    "\xF0\x9F\x87\xA8\xF0\x9F\x87\xAD \xF0\x9F\x91\x8B\xF0\x9F\x8F\xBD",
                    "\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 abc \xD8\xA8\xD9\x83\xD9\x85\n",
                    "\xE6\xB1\x89\xE5\xAD\x97\xE3\x80\x82\r\n\xE6\xB1\x89", "\xC2\xAD soft \xE2\x80\x8B zero",
                    repeated("word ", 200000), repeated("x", 1000000), repeated("\xE6\xB1\x89", 50000),
                    repeated("\xF0\x9F\x98\x80", 10000), "a" + repeated("\xCC\x81", 30000),
                    repeated("a\r\nb\n", 3000), repeated("\n", 5000),
                    repeated("long line ", 900) + "\r\nshort\n"));

TEST(SoftBreaks, keepEveryBlockShortEnoughToPaint) {
    OutputTextEdit pane;
    pane.replaceText(plain(repeated("word ", 200000)));
    for (QTextBlock block = pane.document()->begin(); block.isValid(); block = block.next())
        ASSERT_LE(block.length(), longestPiece + 1);
    EXPECT_GT(pane.document()->blockCount(), 200);
}

TEST(SoftBreaks, standAfterASpaceWhereThereIsOne) {
    const QString line = QStringLiteral("seven s").repeated(2000);
    const qsizetype end = softBreakIn(line, 4000);
    EXPECT_EQ(line[end - 1], u' ');
    EXPECT_GT(end, 3900);
}

TEST(SoftBreaks, neverCutAGraphemeCluster) {
    const QString family =
        QString::fromUtf8("\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7");
    EXPECT_EQ(softBreakIn(family.repeated(600), 4000) % family.size(), 0);
    const QString accented = QStringLiteral("e\u0301\u0302");
    EXPECT_EQ(softBreakIn(accented.repeated(2000), 4000) % accented.size(), 0);
    const QString flag = QString::fromUtf8("\xF0\x9F\x87\xA8\xF0\x9F\x87\xAD");
    EXPECT_EQ(softBreakIn(flag.repeated(2001), 4002) % flag.size(), 0);
    const QString pair = QString::fromUtf8("\xF0\x9F\x98\x80");
    EXPECT_EQ(softBreakIn(pair.repeated(5000), 4001) % 2, 0);
}

TEST(SoftBreaks, letAClusterReachPastTheLimit) {
    const QString tower = QStringLiteral("ab") + QString(6000, QChar(0x301)) + QStringLiteral("cd");
    EXPECT_EQ(softBreakIn(tower, 4000), 1);
    EXPECT_EQ(softBreakIn(tower.sliced(1), 4000), 6001);
}

TEST(SoftBreaks, keepABlockShortThatGrowsInSmallSteps) {
    OutputTextEdit pane;
    pane.replaceText(plain(repeated("x", 3990)));
    for (int i = 0; i < 500; ++i)
        pane.appendText(plain("0123456789"));
    EXPECT_EQ(pane.text(), repeated("x", 3990) + repeated("0123456789", 500));
    for (QTextBlock block = pane.document()->begin(); block.isValid(); block = block.next())
        EXPECT_LE(block.length(), longestPiece + 1);
}

TEST(SoftBreaks, comeAfterTheClusterThatFillsABlockAndGoesOn) {
    OutputTextEdit pane;
    pane.replaceText(plain(repeated("x", 4000)));
    pane.appendText(plain("\xCC\x81y"));
    EXPECT_EQ(pane.document()->begin().length(), 4002);
    EXPECT_EQ(pane.document()->begin().next().text(), QStringLiteral("y"));
    EXPECT_EQ(pane.text(), repeated("x", 4000) + "\xCC\x81y");
}

TEST(SoftBreaks, cutAClusterThatWillNotEnd) {
    OutputTextEdit pane;
    pane.replaceText(plain(repeated("x", 4000)));
    for (int i = 0; i < 500; ++i)
        pane.appendText(plain(repeated("\xCC\x81", 10)));
    EXPECT_EQ(pane.text(), repeated("x", 4000) + repeated("\xCC\x81", 5000));
    EXPECT_LE(pane.document()->begin().length(), longestCluster + 1);
}

TEST(ReplacedText, leavesNoHistoryAndAnUnmodifiedDocument) {
    InputTextEdit pane;
    pane.insertPlainText("typed");
    pane.replaceText(plain("given\n"));
    EXPECT_FALSE(pane.document()->isUndoAvailable());
    EXPECT_FALSE(pane.document()->isModified());
    EXPECT_EQ(pane.textCursor().position(), 0);
}

TEST(ReplacedText, setsTheLineEndOfItsMajority) {
    InputTextEdit pane;
    pane.replaceText(plain("a\r\nb\nc\r\nd"));
    EXPECT_EQ(pane.ownLineEnd(), LineEnd::crlf);
    pane.replaceText(plain("a\xEF\xB7\x90"));
    EXPECT_EQ(pane.ownLineEnd(), LineEnd::lf);
}

TEST(InvalidBytes, becomeReplacementCharactersAndDisturbNothing) {
    OutputTextEdit pane;
    pane.resize(300, 200);
    AttributedText text;
    text.append("a\xFF\xC3", Colour::red);
    text.append("b\n", Colour::blue);
    pane.replaceText(text);
    (void)pane.grab();
    EXPECT_EQ(pane.text(), "a\xEF\xBF\xBD\xEF\xBF\xBD"
                           "b\n");
}

} // namespace lexiform::qt
