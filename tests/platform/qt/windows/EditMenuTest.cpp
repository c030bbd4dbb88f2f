#include "platform/qt/windows/EditMenu.h"
#include "platform/qt/panes/softBreak.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QTextBlock>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class EditMenuTest : public testing::Test {
protected:
    EditMenuTest() : window(desktop.typedInto("The cat sat.")), menu(*window.findChild<EditMenu*>()) {
        QApplication::setActiveWindow(&window);
        QApplication::clipboard()->clear();
        window.textActions().parse->trigger();
    }

    void focus(QWidget* widget) {
        widget->setFocus();
        QApplication::processEvents();
    }

    QAction* action(const QString& title) {
        for (QAction* each : menu.actions())
            if (QString(each->text()).remove(u'&') == title) return each;
        return nullptr;
    }

    // The titles of the enabled commands on the text, in order; those that find come after them.
    QStringList enabled() {
        QStringList titles;
        for (const QAction* each : menu.actions().first(menu.actions().indexOf(action("Find…"))))
            if (each->isEnabled() && !each->isSeparator()) titles.append(QString(each->text()).remove(u'&'));
        return titles;
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    EditMenu& menu;
};

TEST_F(EditMenuTest, offersWhatTheInputPaneCanDo) {
    focus(window.panes()->input());
    EXPECT_EQ(enabled(), (QStringList{"Undo", "Select All"}));
    window.panes()->input()->selectAll();
    EXPECT_EQ(enabled(), (QStringList{"Undo", "Cut", "Copy", "Select All"}));
}

TEST_F(EditMenuTest, offersToPasteWhatTheClipboardHolds) {
    focus(window.panes()->input());
    QApplication::clipboard()->setText("dog");
    EXPECT_TRUE(action("Paste")->isEnabled());
    focus(window.panes()->output());
    EXPECT_FALSE(action("Paste")->isEnabled());
}

TEST_F(EditMenuTest, offersOnlyToCopyFromAPaneThatCannotBeEdited) {
    focus(window.panes()->output());
    EXPECT_EQ(enabled(), QStringList{"Select All"});
    window.panes()->output()->selectAll();
    EXPECT_EQ(enabled(), (QStringList{"Copy", "Select All"}));
}

TEST_F(EditMenuTest, offersNothingForAToolButton) {
    focus(window.panes()->input());
    focus(window.toolBar()->widgetForAction(window.textActions().parse));
    EXPECT_TRUE(enabled().isEmpty());
}

TEST_F(EditMenuTest, offersNothingForAnEmptyPane) {
    focus(window.panes()->concordance());
    EXPECT_TRUE(enabled().isEmpty());
}

TEST_F(EditMenuTest, keepsToThePaneWhileTheMenusHaveTheKeyboard) {
    focus(window.panes()->input());
    focus(window.menuBar());
    EXPECT_EQ(enabled(), (QStringList{"Undo", "Select All"}));
}

TEST_F(EditMenuTest, undoesAndRedoes) {
    focus(window.panes()->input());
    action("Undo")->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "");
    EXPECT_EQ(enabled(), QStringList{"Redo"});
    action("Redo")->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "The cat sat.");
}

TEST_F(EditMenuTest, cutsCopiesAndPastes) {
    focus(window.panes()->output());
    action("Select All")->trigger();
    action("Copy")->trigger();
    focus(window.panes()->input());
    action("Select All")->trigger();
    action("Cut")->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "The cat sat.");
    action("Paste")->trigger();
    action("Paste")->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "The cat sat.The cat sat.");
}

TEST_F(EditMenuTest, keepsLinesShortEnoughToPaint) {
    InputTextEdit& input = *window.panes()->input();
    const std::string line(3900, 'x');
    input.replaceText(AttributedText(line + "\n" + line, Colour::text));
    focus(&input);
    QTextCursor lineEnd(input.document());
    lineEnd.setPosition(3900);
    lineEnd.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    input.setTextCursor(lineEnd);
    for (const char* command : {"Cut", "Undo", "Redo"}) {
        action(command)->trigger();
        QApplication::processEvents();
        EXPECT_LE(input.document()->begin().length(), longestPiece + 1) << command;
    }
    EXPECT_EQ(input.text(), line + line);
}

TEST_F(EditMenuTest, copiesTheColoursOfTheOutput) {
    focus(window.panes()->output());
    action("Select All")->trigger();
    action("Copy")->trigger();
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), "The cat sat.");
    EXPECT_TRUE(copied->html().contains("color: #0055d4\">cat"));
    EXPECT_TRUE(copied->data("text/rtf").startsWith("{\\rtf1"));
}

TEST_F(EditMenuTest, pastesNoMoreThanCharacters) {
    auto* rich = new QMimeData;
    rich->setHtml("<b>dog</b>");
    rich->setText("dog");
    QApplication::clipboard()->setMimeData(rich);
    focus(window.panes()->input());
    action("Select All")->trigger();
    action("Paste")->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "dog");
    EXPECT_FALSE(window.panes()->input()->textCursor().charFormat().hasProperty(QTextFormat::FontWeight));
}

TEST_F(EditMenuTest, opensOverEachPaneWithItsShortcuts) {
    for (PaneTextEdit* pane : window.panes()->all())
        focus(pane);
    for (PaneTextEdit* pane : window.panes()->all()) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20},
                                pane->viewport()->mapToGlobal(QPoint{20, 20}));
        QApplication::sendEvent(pane->viewport(), &event);
        const QPointer<QMenu> open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(open);
        EXPECT_EQ(open->actions(), menu.actions());
        EXPECT_TRUE(pane->hasFocus());
        EXPECT_EQ(action("Paste")->isEnabled(), pane->canPaste());
        EXPECT_EQ(action("Copy")->shortcut(), QKeySequence(QKeySequence::Copy));
        open->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(open);
    }
}

TEST_F(EditMenuTest, leavesTheOtherWindowsAlone) {
    focus(window.panes()->input());
    DocumentWindow& other = desktop.typedInto("dog");
    QApplication::setActiveWindow(&other);
    focus(other.panes()->input());
    EXPECT_EQ(enabled(), (QStringList{"Undo", "Select All"}));
    other.findChild<EditMenu*>()->actions().constFirst()->trigger();
    EXPECT_EQ(window.panes()->input()->text(), "The cat sat.");
    EXPECT_EQ(other.panes()->input()->text(), "");
}

} // namespace
} // namespace lexiform::qt
