#include "platform/qt/documents/DocumentController.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

/// A document read from a file, and whether its window counts as edited.
class EditedMark : public testing::Test {
protected:
    EditedMark() : window(open("The cat sat.")), input(*window.panes()->input()) {
        QApplication::setActiveWindow(&window);
        input.setFocus();
        input.moveCursor(QTextCursor::End);
    }

    DocumentWindow& open(const QByteArray& text) {
        const QString name = QStringLiteral("text%1.txt").arg(desktop.documents.documents().size());
        EXPECT_TRUE(desktop.documents.open({desktop.file(name, text)}));
        return desktop.window(desktop.documents.documents().size() - 1);
    }
    [[nodiscard]] QAction& action(const QString& title) const {
        for (QAction* each : window.findChildren<QAction*>())
            if (QString(each->text()).remove(u'&') == title) return *each;
        ADD_FAILURE() << "no action " << title.toStdString();
        return *window.textActions().parse;
    }
    void expectUnedited(const char* after) const {
        EXPECT_FALSE(window.isEdited()) << after;
        EXPECT_FALSE(window.statusLine()->showsEdited()) << after;
    }
    void save() const {
        window.textActions().parse->trigger();
        emit window.fileMenu()->saveRequested();
        ASSERT_FALSE(window.isEdited());
    }

    DesktopUnderTest desktop;
    DocumentWindow& window;
    InputTextEdit& input;
};

TEST_F(EditedMark, isNotSetByAPassAListOrAView) {
    window.textActions().parse->trigger();
    expectUnedited("a parse");
    window.textActions().multiParse->trigger();
    expectUnedited("a multi-parse");
    QComboBox& views = *window.toolBar()->typesPopUp();
    for (int view = 0; view < views.count(); ++view) {
        views.setCurrentIndex(view);
        emit views.activated(view);
        expectUnedited("a view");
    }
    window.textActions().listWords->trigger();
    expectUnedited("a list of words");
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(desktop.questions.asked.isEmpty());
}

TEST_F(EditedMark, isNotSetByZoomAndWrapping) {
    action("Zoom In").trigger();
    EXPECT_EQ(input.zoom(), 1);
    expectUnedited("zooming in");
    action("Wrap Lines of Input").trigger();
    EXPECT_FALSE(input.wrapsLines());
    expectUnedited("running on");
    action("Wrap Lines of Input").trigger();
    window.resize(window.width() / 2, window.height());
    QApplication::processEvents();
    expectUnedited("another width");
}

TEST_F(EditedMark, isNotSetByFinding) {
    action("Find…").trigger();
    window.findBar()->findChild<QLineEdit*>()->setText("cat");
    action("Find Next").trigger();
    action("Find Previous").trigger();
    EXPECT_EQ(input.textCursor().selectedText(), "cat");
    expectUnedited("finding");
}

TEST_F(EditedMark, isNotSetByAnotherAppearanceNorByCopying) {
    desktop.theme.setChoice(AppearanceChoice::dark);
    (void)window.grab();
    input.selectAll();
    input.copy();
    expectUnedited("darkness");
}

TEST_F(EditedMark, isNotSetByALineThatIsTooLongForOneBlock) {
    const DocumentWindow& longLine = open(QByteArray(20'000, 'x'));
    EXPECT_FALSE(longLine.isEdited());
    action("Zoom In").trigger();
    EXPECT_FALSE(longLine.isEdited());
}

TEST_F(EditedMark, goesWhenAllEditsAreUndone) {
    QTest::keyClicks(&input, " The");
    input.moveCursor(QTextCursor::Start);
    QTest::keyClick(&input, Qt::Key_Delete);
    EXPECT_TRUE(window.isEdited());
    while (input.document()->isUndoAvailable())
        input.undo();
    EXPECT_EQ(input.text(), "The cat sat.");
    expectUnedited("undoing");
    input.redo();
    EXPECT_TRUE(window.isEdited());
}

TEST_F(EditedMark, goesWhenEditsAreUndoneBackToTheSave) {
    QTest::keyClicks(&input, " The");
    save();
    QTest::keyClicks(&input, " cat");
    EXPECT_TRUE(window.isEdited());
    input.undo();
    EXPECT_EQ(input.text(), "The cat sat. The");
    expectUnedited("undoing");
    input.undo();
    EXPECT_EQ(input.text(), "The cat sat.");
    EXPECT_TRUE(window.isEdited()); // the file has more
    input.redo();
    EXPECT_EQ(input.text(), "The cat sat. The");
    expectUnedited("redoing");
}

TEST_F(EditedMark, goesWhenAPassLiesBetweenTheEditAndItsUndoing) {
    QTest::keyClicks(&input, " The");
    window.textActions().parse->trigger();
    window.textActions().multiParse->trigger();
    EXPECT_TRUE(window.isEdited());
    input.undo();
    EXPECT_EQ(input.text(), "The cat sat.");
    expectUnedited("undoing");
}

// What breaks a long line softly is no edit of its own, neither before an undo nor after.
TEST_F(EditedMark, goesWhenEditsOfALongLineAreUndone) {
    const DocumentWindow& longLine = open(QByteArray(7'900, 'x'));
    InputTextEdit& pane = *longLine.panes()->input();
    pane.moveCursor(QTextCursor::Start);
    pane.insertPlainText(QString(6'000, u'y'));
    QApplication::processEvents();
    EXPECT_TRUE(longLine.isEdited());
    while (pane.document()->isUndoAvailable())
        pane.undo();
    EXPECT_EQ(pane.text(), std::string(7'900, 'x'));
    EXPECT_FALSE(longLine.isEdited());
}

TEST_F(EditedMark, staysAfterASaveThatFails) {
    QTest::keyClicks(&input, " The");
    window.textActions().parse->trigger();
    desktop.save = [](const QString&, std::string_view) -> Outcome<Done, SaveFault> {
        return SaveFault{"No space left on device."};
    };
    emit window.fileMenu()->saveRequested();
    EXPECT_TRUE(window.isEdited());
    input.undo();
    expectUnedited("undoing"); // the file still has what was read
}

} // namespace
} // namespace lexiform::qt
