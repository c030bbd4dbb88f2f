#include "platform/qt/windows/DocumentWindow.h"
#include "platform/qt/windows/PopUpBox.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"
#include "tests/support/TableTagger.h"

#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

const std::vector<TableRow> twoScripts = {{"Mice", "Latn", "en", "Noun", "mouse"},
                                          {" ", "Latn", std::nullopt, "Whitespace"},
                                          {"море", "Cyrl", "ru", "Noun", "море"}};

/// A window with a text in two scripts that a tagger knows.
class SchemeCommands : public testing::Test {
protected:
    SchemeCommands() {
        desktop.makeTagger = tableTaggers(twoScripts);
        window = &desktop.typedInto("Mice море");
        window->textActions().multiParse->trigger();
    }

    void choose(int item) {
        PopUpBox& popUp = *window->toolBar()->typesPopUp();
        popUp.setFocus();
        QTest::keyClick(&popUp, Qt::Key_Home);
        for (int i = 0; i < item; ++i)
            QTest::keyClick(&popUp, Qt::Key_Down);
    }

    /// The colours in which the two words are painted.
    [[nodiscard]] std::pair<QColor, QColor> wordColours() const {
        const OutputTextEdit& output = *window->panes()->output();
        return {*output.paintedColourAt(0),
                *output.paintedColourAt(static_cast<int>(output.text().find("м")))};
    }

    DesktopUnderTest desktop;
    DocumentWindow* window;
};

TEST_F(SchemeCommands, enableThePopUpAndShowTheTypesWithTheirKey) {
    EXPECT_TRUE(window->toolBar()->typesPopUp()->isEnabled());
    EXPECT_EQ(window->panes()->output()->text(), "Mice море");
    EXPECT_EQ(wordColours().first, wordColours().second);
    EXPECT_NE(window->panes()->key()->text().find("Noun"), std::string::npos);
    EXPECT_EQ(window->statusLine()->text(), "2 words, multi-parsed");
}

TEST_F(SchemeCommands, showEachViewThatThePopUpOffers) {
    choose(0);
    EXPECT_NE(wordColours().first, wordColours().second);
    EXPECT_NE(window->panes()->key()->text().find("Cyrl"), std::string::npos);
    choose(1);
    EXPECT_NE(wordColours().first, wordColours().second);
    EXPECT_NE(window->panes()->key()->text().find("ru"), std::string::npos);
    choose(4);
    EXPECT_EQ(window->panes()->output()->text(), "mouse море");
    choose(3);
    EXPECT_EQ(window->panes()->output()->text(), "Mice море");
    EXPECT_EQ(window->panes()->key()->text(), ViewController::stdColourKeys);
    choose(2);
    EXPECT_EQ(wordColours().first, wordColours().second);
    EXPECT_NE(window->panes()->key()->text().find("Noun"), std::string::npos);
}

TEST_F(SchemeCommands, sayThatTheTextIsParsedAfterTheStandardTypes) {
    window->panes()->input()->insertPlainText("!");
    EXPECT_EQ(window->statusLine()->text(), "Not parsed yet");
    choose(3);
    EXPECT_EQ(window->statusLine()->text(), "2 words, parsed");
}

TEST_F(SchemeCommands, storeTheWholeKeyAndTheTitleOfTheWindow) {
    EXPECT_EQ(desktop.defaults->stringForKey("windowTitle"), "Untitled");
    EXPECT_NE(desktop.defaults->stringForKey("theKeyStr").value().find("Whitespace"), std::string::npos);
}

TEST_F(SchemeCommands, disableThePopUpAgainAfterAPlainParse) {
    window->textActions().parse->trigger();
    EXPECT_FALSE(window->toolBar()->typesPopUp()->isEnabled());
    EXPECT_EQ(window->statusLine()->text(), "2 words, parsed");
}

TEST_F(SchemeCommands, listTheLemmasOfTheWords) {
    window->textActions().listWords->trigger();
    EXPECT_EQ(window->panes()->concordance()->text(),
              "\nNouns:\nmouse (1)\nморе (1)\n\nTotal Nouns = 2\n\nTotal words classified = 2\n");
}

TEST(ConcordancePane, keepsItsPlaceWhenTheListIsMadeAgain) {
    DesktopUnderTest desktop;
    std::string text;
    for (char a = 'a'; a <= 'z'; ++a)
        for (char b = 'a'; b <= 'z'; ++b) {
            desktop.script.emplace(std::string{a, b}, "Noun");
            text += std::string{a, b, ' '};
        }
    DocumentWindow& window = desktop.typedInto(QString::fromStdString(text));
    window.textActions().parse->trigger();
    window.textActions().listWords->trigger();
    QScrollBar* const bar = window.panes()->concordance()->verticalScrollBar();
    bar->setValue(300);
    window.textActions().listWords->trigger();
    EXPECT_EQ(bar->value(), 300);
}

} // namespace
} // namespace lexiform::qt
