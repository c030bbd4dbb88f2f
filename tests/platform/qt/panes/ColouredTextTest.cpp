#include "document/readAttributedText.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/theme/Palette.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace lexiform::qt {

namespace {

AttributedText coloured(std::initializer_list<std::pair<std::string, Colour>> pieces) {
    AttributedText text;
    for (const auto& [piece, colour] : pieces)
        text.append(piece, colour);
    return text;
}

/// A coloured pane on screen in the light appearance.
class ColouredText : public testing::Test {
protected:
    ColouredText() {
        pane.setPalette(paletteOf(Appearance::light));
        pane.resize(300, 200);
        pane.show();
    }

    void expectColours(std::initializer_list<Colour> colours, int from = 0,
                       Appearance appearance = Appearance::light) {
        for (const Colour colour : colours) {
            EXPECT_EQ(pane.paintedColourAt(from), valueOf(colour, appearance)) << "at " << from;
            ++from;
        }
    }

    OutputTextEdit pane;
};

int pixelsOf(const QImage& image, QColor colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

} // namespace

TEST_F(ColouredText, paintsEveryCharacterInItsColour) {
    pane.replaceText(
        coloured({{"ab", Colour::red}, {" ", Colour::gray}, {"c", Colour::text}, {"d", Colour::blue}}));
    expectColours({Colour::red, Colour::red, Colour::gray, Colour::text, Colour::blue});
    EXPECT_EQ(pane.paintedColourAt(5), std::nullopt);
    EXPECT_EQ(pane.paintedColourAt(99), std::nullopt);
}

TEST_F(ColouredText, countsAstralAndCombiningCharactersRight) {
    pane.replaceText(coloured({{"\xF0\x9F\x98\x80", Colour::red},
                               {"e\xCC\x81", Colour::green},
                               {"\xE6\xB1\x89", Colour::pink},
                               {"z", Colour::brown}}));
    expectColours({Colour::red, Colour::red, Colour::green, Colour::green, Colour::pink, Colour::brown});
}

TEST_F(ColouredText, keepsStepOverLineEndsOfEveryLength) {
    pane.replaceText(coloured({{"a\r\n", Colour::red},
                               {"b\xE2\x80\xA9", Colour::blue},
                               {"c\r", Colour::green},
                               {"\r\n", Colour::gray},
                               {"d", Colour::orange}}));
    expectColours({Colour::red}, 0);
    expectColours({Colour::blue}, 2);
    expectColours({Colour::green}, 4);
    expectColours({Colour::orange}, 7);
}

TEST_F(ColouredText, staysRightAfterSoftBreaks) {
    AttributedText text;
    for (int word = 0; word < 3000; ++word) {
        text.append("w\xC3\xB6rd", static_cast<Colour>(word % 9));
        text.append(" ", Colour::text);
    }
    pane.replaceText(text);
    ASSERT_GT(pane.document()->blockCount(), 3);
    int character = 0;
    for (QTextBlock block = pane.document()->begin(); block.isValid(); block = block.next())
        for (int i = 0; i < block.length() - 1; ++i, ++character) {
            const Colour expected =
                character % 5 == 4 ? Colour::text : static_cast<Colour>(character / 5 % 9);
            ASSERT_EQ(pane.paintedColourAt(block.position() + i), valueOf(expected, Appearance::light));
        }
}

TEST_F(ColouredText, continuesInAnAppendedText) {
    pane.replaceText(coloured({{"ab", Colour::red}}));
    pane.appendText(coloured({{"c\n", Colour::blue}, {"d", Colour::green}}));
    pane.appendText(coloured({{"e", Colour::pink}}));
    expectColours({Colour::red, Colour::red, Colour::blue});
    expectColours({Colour::green, Colour::pink}, 4);
}

TEST_F(ColouredText, maybeAppendedToNothing) {
    pane.appendText(coloured({{"a", Colour::red}, {"b", Colour::blue}}));
    expectColours({Colour::red, Colour::blue});
}

TEST_F(ColouredText, isReplacedWhole) {
    pane.replaceText(coloured({{"aaaa\nbbbb", Colour::red}}));
    expectColours({Colour::red});
    pane.replaceText(coloured({{"aa", Colour::blue}, {"aa\nbb", Colour::green}}));
    expectColours({Colour::blue, Colour::blue, Colour::green});
    pane.replaceText(AttributedText());
    EXPECT_EQ(pane.paintedColourAt(0), std::nullopt);
}

TEST_F(ColouredText, isSeenOnScreen) {
    pane.replaceText(coloured({{"first paragraph\n", Colour::red}, {"second\n", Colour::blue}}));
    const QImage shown = pane.grab().toImage();
    EXPECT_GT(pixelsOf(shown, valueOf(Colour::red, Appearance::light)), 20);
    EXPECT_GT(pixelsOf(shown, valueOf(Colour::blue, Appearance::light)), 10);
}

TEST_F(ColouredText, followsThePaletteIntoTheDark) {
    pane.replaceText(coloured({{"HH", Colour::red}, {"c\n", Colour::text}, {"d", Colour::blue}}));
    (void)pane.grab();
    pane.setPalette(paletteOf(Appearance::dark));
    expectColours({Colour::red, Colour::red, Colour::text}, 0, Appearance::dark);
    expectColours({Colour::blue}, 4, Appearance::dark);
    const QImage shown = pane.grab().toImage();
    EXPECT_EQ(pixelsOf(shown, valueOf(Colour::red, Appearance::light)), 0);
    EXPECT_GT(pixelsOf(shown, valueOf(Colour::red, Appearance::dark)), 5);
}

TEST_F(ColouredText, showsSelectedWordsInTheTextColour) {
    pane.replaceText(coloured({{"selected", Colour::red}}));
    pane.selectAll();
    pane.setFocus();
    const QImage shown = pane.grab().toImage();
    EXPECT_EQ(pixelsOf(shown, valueOf(Colour::red, Appearance::light)), 0);
    EXPECT_GT(pixelsOf(shown, surfacesOf(Appearance::light).selection), 100);
}

TEST_F(ColouredText, isAtTheTopAfterAReplacementAndStaysPutWhenMoreComes) {
    std::string lines;
    for (int i = 0; i < 100; ++i)
        lines += "line\n";
    pane.replaceText(coloured({{lines, Colour::red}}));
    EXPECT_EQ(pane.verticalScrollBar()->value(), 0);
    pane.verticalScrollBar()->setValue(50);
    pane.appendText(coloured({{lines, Colour::blue}}));
    EXPECT_EQ(pane.verticalScrollBar()->value(), 50);
    pane.replaceText(coloured({{lines, Colour::green}}));
    EXPECT_EQ(pane.verticalScrollBar()->value(), 0);
    EXPECT_FALSE(pane.textCursor().hasSelection());
}

TEST_F(ColouredText, canBeSelectedByKeyboardButNotChanged) {
    pane.replaceText(coloured({{"abc", Colour::red}}));
    pane.setFocus();
    QTest::keyClick(&pane, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(pane.textCursor().selectedText(), QStringLiteral("a"));
    QTest::keyClicks(&pane, "x");
    QTest::keyClick(&pane, Qt::Key_Delete);
    QTest::keyClick(&pane, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pane.text(), "abc");
}

TEST_F(ColouredText, isCopiedAsTextHtmlAndRtf) {
    pane.replaceText(coloured({{"one", Colour::red},
                               {" & ", Colour::gray},
                               {"tw\xC3\xB6\r\n", Colour::blue},
                               {"x", Colour::text}}));
    QTextCursor cursor = pane.textCursor();
    cursor.setPosition(1);
    cursor.setPosition(11, QTextCursor::KeepAnchor);
    pane.setTextCursor(cursor);
    pane.copy();
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), QStringLiteral("ne & tw\u00F6\r\nx"));
    const QString html = copied->html();
    EXPECT_TRUE(html.contains(QStringLiteral("<span style=\"color: #d70015\">ne</span>")))
        << html.toStdString();
    EXPECT_TRUE(html.contains(QStringLiteral(" &amp; ")));
    const QByteArray rtf = copied->data(QStringLiteral("text/rtf"));
    EXPECT_TRUE(rtf.startsWith("{\\rtf1"));
    EXPECT_TRUE(rtf.contains("\\cf2 ne\\cf1  & \\cf3 tw\\u246?")) << rtf.toStdString();
    EXPECT_EQ(copied->data(QStringLiteral("application/rtf")), rtf);
}

TEST_F(ColouredText, isCopiedFromADarkPaneInTheColoursForPaper) {
    const AttributedText text =
        coloured({{"one", Colour::red}, {" ", Colour::gray}, {"two\r\n", Colour::blue}, {"x", Colour::text}});
    pane.setPalette(paletteOf(Appearance::dark));
    pane.replaceText(text);
    pane.selectAll();
    pane.copy();
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    const QByteArray rtf = copied->data(QStringLiteral("text/rtf"));
    EXPECT_TRUE(rtf.contains("{\\colortbl;\\red110\\green110\\blue115;\\red215\\green0\\blue21;"
                             "\\red0\\green85\\blue212;"))
        << rtf.toStdString();
    EXPECT_TRUE(copied->html().contains(QStringLiteral("<span style=\"color: #d70015\">one</span>")));
}

TEST_F(ColouredText, isCopiedAsTheRtfThatIsReadBackTheSame) {
    // The line end is in the colour of the text, as nobody sees it.
    const AttributedText text = coloured({{"one", Colour::red},
                                          {" {", Colour::gray},
                                          {"tw\xC3\xB6", Colour::blue},
                                          {"\r\nx", Colour::text},
                                          {"\xF0\x9F\x90\x88", Colour::orange}});
    pane.replaceText(text);
    pane.selectAll();
    pane.copy();
    const auto rtf = QApplication::clipboard()->mimeData()->data(QStringLiteral("text/rtf")).toStdString();
    const auto read = document::readAttributedText(rtf);
    ASSERT_TRUE(read.succeeded());
    EXPECT_EQ(read.value(), text);
}

TEST_F(ColouredText, tellsOfNoChangeWhenItIsPainted) {
    pane.replaceText(coloured({{"a\nb\nc", Colour::red}}));
    int changes = 0;
    QObject::connect(&pane, &QPlainTextEdit::textChanged, [&] { ++changes; });
    (void)pane.grab();
    pane.setPalette(paletteOf(Appearance::dark));
    (void)pane.grab();
    EXPECT_EQ(changes, 0);
}

} // namespace lexiform::qt
