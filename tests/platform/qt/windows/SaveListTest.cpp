#include "platform/qt/windows/DocumentWindow.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QFile>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

/// A window with a list of words.
class SaveList : public testing::Test {
protected:
    SaveList() : window(&desktop.typedInto("The cat sat.")) {
        window->textActions().parse->trigger();
        window->textActions().listWords->trigger();
        list = QByteArray::fromStdString(window->panes()->concordance()->text());
    }

    SaveDialog& openPanel() {
        window->textActions().saveList->trigger();
        return *desktop.panels.back().lock()->dialog();
    }

    /// The person types a path and confirms.
    static void confirm(SaveDialog& dialog, const QString& path) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
        QApplication::processEvents();
    }

    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    DesktopUnderTest desktop;
    DocumentWindow* window;
    QByteArray list;
};

TEST_F(SaveList, opensAPanelOfItsOwnThatBlocksNothingAndProposesTheTitle) {
    const SaveDialog& dialog = openPanel();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), nullptr);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "Untitled-wordlist.text");
}

TEST_F(SaveList, writesTheListToTheChosenFile) {
    const QString path = desktop.folder() + "/words.txt";
    confirm(openPanel(), path);
    EXPECT_EQ(contentOf(path), list);
    EXPECT_EQ(window->panes()->output()->text(), "The cat sat.");
}

TEST_F(SaveList, givesANameWithoutAnAllowedExtensionTheUsualOne) {
    confirm(openPanel(), desktop.folder() + "/words.csv");
    EXPECT_EQ(contentOf(desktop.folder() + "/words.csv.text"), list);
}

TEST_F(SaveList, writesNothingWhenItIsCancelled) {
    openPanel().reject();
    QApplication::processEvents();
    EXPECT_TRUE(desktop.panels.back().expired());
    EXPECT_EQ(window->panes()->output()->text(), "The cat sat.");
}

TEST_F(SaveList, tellsAtTheEndOfTheOutputPaneThatTheFolderDoesNotExist) {
    const QString path = desktop.folder() + "/nowhere/words.text";
    confirm(openPanel(), path);
    EXPECT_EQ(window->panes()->output()->text(), "The cat sat.“words.text” could not be saved in “" +
                                                     desktop.folder().toStdString() +
                                                     "/nowhere”: No such file or directory.");
}

TEST_F(SaveList, tellsAtTheEndOfTheOutputPaneThatAFileCannotBeWritten) {
    confirm(openPanel(), "/proc/words.text"); // nobody, not even the superuser, may make files there
    const std::string output = window->panes()->output()->text();
    EXPECT_EQ(output.rfind("The cat sat.“words.text” could not be saved in “/proc”: ", 0), 0U) << output;
}

TEST_F(SaveList, writesTheListOfEachOfTwoPanelsAsItWasWhenThePanelOpened) {
    SaveDialog& first = openPanel();
    window->panes()->input()->selectAll();
    window->panes()->input()->insertPlainText("cat");
    window->textActions().parse->trigger();
    window->textActions().listWords->trigger();
    SaveDialog& second = openPanel();
    confirm(second, desktop.folder() + "/2.text");
    confirm(first, desktop.folder() + "/1.text");
    EXPECT_EQ(contentOf(desktop.folder() + "/1.text"), list);
    EXPECT_EQ(contentOf(desktop.folder() + "/2.text"),
              "\nNouns:\ncat (1)\n\nTotal Nouns = 1\n\nTotal words classified = 1\n");
}

TEST_F(SaveList, stillWritesWhenItsWindowIsClosed) {
    SaveDialog& dialog = openPanel();
    const QPointer<DocumentWindow> closing(window);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    EXPECT_TRUE(closing.isNull());
    confirm(dialog, desktop.folder() + "/words.text");
    EXPECT_EQ(contentOf(desktop.folder() + "/words.text"), list);
    EXPECT_TRUE(desktop.panels.back().expired());
}

} // namespace
} // namespace lexiform::qt
