#include "platform/qt/documents/DocumentController.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QFile>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class Closing : public testing::Test {
protected:
    DocumentWindow& opened(const QString& path) {
        EXPECT_TRUE(desktop.documents.open({path}));
        return desktop.window(desktop.documents.documents().size() - 1);
    }
    DocumentWindow& edited(const QString& path) {
        DocumentWindow& window = opened(path);
        window.panes()->input()->moveCursor(QTextCursor::End);
        window.panes()->input()->insertPlainText(" The cat.");
        window.textActions().parse->trigger();
        return window;
    }
    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    static void close(DocumentWindow& window) {
        window.close();
        QApplication::processEvents();
    }

    DesktopUnderTest desktop;
};

TEST_F(Closing, keepsTheWindowThatThePersonDoesNotWantToClose) {
    DocumentWindow& window = desktop.typedInto("The cat");
    desktop.questions.unsaved = UnsavedAnswer::cancel;
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    desktop.questions.unsaved = UnsavedAnswer::save; // and then choose nowhere
    window.textActions().parse->trigger();
    EXPECT_FALSE(window.close());
    desktop.questions.unsaved = UnsavedAnswer::discard;
    EXPECT_TRUE(window.close());
}

TEST_F(Closing, endsWithAllWindowsOrWithNone) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    opened(path);
    desktop.typedInto("The cat");
    desktop.questions.unsaved = UnsavedAnswer::cancel;
    desktop.documents.quit();
    EXPECT_EQ(desktop.windows.windows().size(), 2);
    desktop.questions.unsaved = UnsavedAnswer::discard;
    desktop.documents.quit();
    EXPECT_EQ(desktop.windows.windows().size(), 0);
    EXPECT_EQ(desktop.questions.asked, (QStringList{"save Untitled?", "save Untitled?"}));
    QApplication::processEvents();
    EXPECT_EQ(desktop.remembered.session(), QStringList{path});
}

TEST_F(Closing, ofAllKeepsBothEditedWindowsWhenTheSecondIsKept) {
    const DocumentWindow& first = edited(desktop.file("a.txt", "The"));
    const DocumentWindow& second = edited(desktop.file("b.txt", "cat"));
    desktop.questions.unsavedInTurn = {UnsavedAnswer::discard, UnsavedAnswer::cancel};
    desktop.documents.quit();
    EXPECT_EQ(desktop.questions.asked, (QStringList{"save a.txt?", "save b.txt?"}));
    EXPECT_TRUE(first.isVisible());
    EXPECT_TRUE(second.isVisible());
    EXPECT_TRUE(first.isEdited());
    EXPECT_TRUE(second.isEdited());
    EXPECT_EQ(first.panes()->input()->text(), "The The cat.");
}

TEST_F(Closing, ofAllLeavesSavedWhatWasSavedBeforeTheSecondIsKept) {
    const QString path = desktop.file("a.txt", "The");
    const DocumentWindow& first = edited(path);
    const DocumentWindow& second = edited(desktop.file("b.txt", "cat"));
    desktop.questions.unsavedInTurn = {UnsavedAnswer::save, UnsavedAnswer::cancel};
    desktop.documents.quit();
    EXPECT_EQ(contentOf(path), "The The cat.");
    EXPECT_FALSE(first.isEdited());
    EXPECT_TRUE(second.isEdited());
    EXPECT_EQ(desktop.windows.windows().size(), 2);
}

TEST_F(Closing, ofAllIsCalledOffByAFileThatCannotBeSaved) {
    edited(desktop.file("a.txt", "The"));
    opened(desktop.file("b.txt", "cat"));
    desktop.questions.unsaved = UnsavedAnswer::save;
    desktop.save = [](const QString&, std::string_view) -> Outcome<Done, SaveFault> {
        return SaveFault{"No space left on device."};
    };
    desktop.documents.quit();
    EXPECT_EQ(desktop.questions.failures.size(), 1);
    EXPECT_EQ(desktop.windows.windows().size(), 2);
}

TEST_F(Closing, ofTheLastWindowLeavesItsFileForTheNextStart) {
    const QString path = desktop.file("a.txt", "The");
    DocumentWindow& window = opened(path);
    desktop.documents.newDocument();
    close(desktop.window(1));
    close(window);
    EXPECT_EQ(desktop.remembered.session(), QStringList{path});
}

TEST_F(Closing, ofTheLastUntitledWindowLeavesNothingForTheNextStart) {
    DocumentWindow& window = opened(desktop.file("a.txt", "The"));
    desktop.documents.newDocument();
    close(window);
    close(desktop.window());
    EXPECT_EQ(desktop.remembered.session(), QStringList());
}

TEST_F(Closing, ofNothingButAnUntitledWindowForgetsTheFilesOfAnEarlierRun) {
    desktop.remembered.setSession({desktop.file("earlier.txt", "The")});
    desktop.documents.newDocument();
    close(desktop.window());
    EXPECT_EQ(desktop.remembered.session(), QStringList());
}

TEST_F(Closing, ofTwoWindowsAtOnceLeavesTheFilesOfBoth) {
    const QStringList paths = {desktop.file("a.txt", "The"), desktop.file("b.txt", "cat")};
    desktop.documents.open(paths);
    desktop.window(0).close();
    close(desktop.window(1));
    EXPECT_EQ(desktop.remembered.session(), paths);
}

TEST_F(Closing, ofAllLeavesTheirFilesForTheNextStart) {
    const QStringList paths = {desktop.file("a.txt", "The"), desktop.file("b.txt", "cat")};
    desktop.documents.open(paths);
    desktop.documents.newDocument();
    desktop.documents.quit();
    QApplication::processEvents();
    EXPECT_TRUE(desktop.documents.documents().empty());
    EXPECT_EQ(desktop.remembered.session(), paths);
}

} // namespace
} // namespace lexiform::qt
