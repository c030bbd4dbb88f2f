#include "platform/qt/documents/DocumentController.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeData>

#include <gtest/gtest.h>

#include <filesystem>

namespace lexiform::qt {
namespace {

class Saving : public testing::Test {
protected:
    DocumentWindow& opened(const QString& path) {
        EXPECT_TRUE(desktop.documents.open({path}));
        return desktop.window(desktop.documents.documents().size() - 1);
    }
    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void append(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
    }
    static void type(DocumentWindow& window, const QString& text) {
        window.panes()->input()->moveCursor(QTextCursor::End);
        window.panes()->input()->insertPlainText(text);
    }

    DesktopUnderTest desktop;
};

TEST_F(Saving, writesWhatWasEditedAndParsed) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    type(window, " The cat.");
    EXPECT_TRUE(window.isEdited());
    EXPECT_TRUE(window.statusLine()->showsEdited());
    window.textActions().parse->trigger();
    EXPECT_TRUE(window.isEdited()); // parsing saves nothing
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(contentOf(path), "The cat sat. The cat.");
    EXPECT_FALSE(window.isEdited());
    EXPECT_FALSE(window.statusLine()->showsEdited());
    EXPECT_TRUE(desktop.questions.asked.isEmpty());
}

TEST_F(Saving, asksBeforeUnparsedEditsAreLeftOut) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    type(window, " The cat.");
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.asked, QStringList{"other text into cat.txt?"});
    EXPECT_EQ(contentOf(path), "The cat sat.");
    EXPECT_TRUE(window.isEdited());
}

TEST_F(Saving, replacesTheTextWhenThePersonSaysSo) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    window.panes()->output()->replaceText(AttributedText("the cat sit", Colour::text));
    desktop.questions.otherText = OtherTextAnswer::replace;
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(contentOf(path), "the cat sit");
}

TEST_F(Saving, asksBeforeATextThatCouldNotBeReadIsReplaced) {
    const QString path = desktop.file("latin.txt", "caf\xE9");
    DocumentWindow& window = opened(path);
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.asked, QStringList{"other text into latin.txt?"});
    EXPECT_EQ(contentOf(path), "caf\xE9");
}

TEST_F(Saving, asksBeforeEditsAreLostInANewFile) {
    DocumentWindow& window = desktop.typedInto("The cat");
    emit window.fileMenu()->saveAsRequested();
    EXPECT_EQ(desktop.questions.asked, QStringList{"Untitled without edits?"});
    EXPECT_TRUE(window.isEdited());
}

TEST_F(Saving, makesTheChosenFileThatOfTheDocument) {
    DocumentWindow& window = desktop.typedInto("The cat");
    window.textActions().parse->trigger();
    const QString path = desktop.folder() + "/kept.txt";
    desktop.questions.target = SaveTarget{path, std::string(plainTextType)};
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(contentOf(path), "The cat");
    EXPECT_EQ(window.windowTitle(), "kept.txt");
    EXPECT_EQ(desktop.remembered.recent(), QStringList{path});
    ASSERT_TRUE(desktop.questions.proposal);
    EXPECT_EQ(QFileInfo(desktop.questions.proposal->path).fileName(), "Untitled.rtf");
}

TEST_F(Saving, writesRichTextAsRtf) {
    DocumentWindow& window = opened(desktop.file("cat.txt", "The cat sat."));
    const QString path = desktop.folder() + "/cat.rtf";
    desktop.questions.target = SaveTarget{path, std::string(richTextType)};
    emit window.fileMenu()->saveAsRequested();
    EXPECT_TRUE(contentOf(path).startsWith("{\\rtf1"));
    EXPECT_EQ(contentOf(desktop.folder() + "/cat.txt"), "The cat sat.");
}

TEST_F(Saving, leavesAFileAloneThatIsOnlyViewed) {
    const QString path = desktop.file("page.html", "<p>The cat sat.</p>");
    DocumentWindow& window = opened(path);
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.asked, QStringList{"where?"});
    ASSERT_TRUE(desktop.questions.proposal);
    EXPECT_EQ(desktop.questions.proposal->path, desktop.folder() + "/page.rtf");
    EXPECT_EQ(contentOf(path), "<p>The cat sat.</p>");
}

TEST_F(Saving, asksBeforeAChangeOfAnotherProgramIsOverwritten) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    append(path, " More.");
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.asked, QStringList{"overwrite changed cat.txt?"});
    EXPECT_EQ(contentOf(path), "The cat sat. More.");
    desktop.questions.confirms = true;
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(contentOf(path), "The cat sat.");
    emit window.fileMenu()->saveRequested(); // its own change is none of another program
    EXPECT_EQ(desktop.questions.asked.size(), 2);
}

TEST_F(Saving, leavesAloneAFileThatAnotherWindowShows) {
    const QString other = desktop.file("other.txt", "The dog.");
    const QString name = desktop.folder() + "/name.txt";
    const QString link = desktop.folder() + "/link.txt";
    std::filesystem::create_hard_link(other.toStdString(), name.toStdString());
    QFile::link(other, link);
    opened(other);
    DocumentWindow& window = desktop.typedInto("The cat");
    window.textActions().parse->trigger();
    for (const QString& target : {other, name, link})
        desktop.questions.targetsInTurn.emplace_back(SaveTarget{target, std::string(plainTextType)});
    emit window.fileMenu()->saveAsRequested();
    ASSERT_EQ(desktop.questions.failures.size(), 3);
    EXPECT_EQ(desktop.questions.failures.at(0),
              "other.txt: A file of that name is open in another window. Close that window first, or take "
              "another name.");
    EXPECT_EQ(contentOf(other), "The dog.");
    EXPECT_EQ(window.displayName(), "Untitled");
    EXPECT_TRUE(window.isEdited());
}

TEST_F(Saving, asksForAnotherNameWhereAnotherWindowShowsTheFile) {
    const QString other = desktop.file("other.txt", "The dog.");
    const QString path = desktop.folder() + "/cat.txt";
    opened(other);
    DocumentWindow& window = desktop.typedInto("The cat");
    window.textActions().parse->trigger();
    desktop.questions.targetsInTurn = {SaveTarget{other, std::string(plainTextType)},
                                       SaveTarget{path, std::string(plainTextType)}};
    emit window.fileMenu()->saveAsRequested();
    EXPECT_EQ(desktop.questions.asked, (QStringList{"where?", "where?"}));
    EXPECT_EQ(desktop.questions.proposal->path, other); // the dialog comes again as it was left
    EXPECT_EQ(desktop.questions.proposal->type, plainTextType);
    EXPECT_EQ(contentOf(path), "The cat");
    EXPECT_EQ(contentOf(other), "The dog.");
    EXPECT_FALSE(window.isEdited());
}

TEST_F(Saving, overwritesTheFileOfAWindowThatIsClosed) {
    const QString other = desktop.file("other.txt", "The dog.");
    DocumentWindow& closing = opened(other);
    DocumentWindow& window = desktop.typedInto("The cat");
    window.textActions().parse->trigger();
    closing.close();
    desktop.questions.target = SaveTarget{other, std::string(plainTextType)};
    emit window.fileMenu()->saveAsRequested();
    EXPECT_EQ(contentOf(other), "The cat");
}

TEST_F(Saving, goesToItsOwnFileByItsOwnName) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    type(window, " The cat.");
    window.textActions().parse->trigger();
    desktop.questions.target = SaveTarget{path, std::string(plainTextType)};
    emit window.fileMenu()->saveAsRequested();
    EXPECT_EQ(contentOf(path), "The cat sat. The cat.");
}

TEST_F(Saving, writesAFileAgainThatWasRemoved) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    QFile::remove(path);
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(contentOf(path), "The cat sat.");
}

TEST_F(Saving, tellsOfAFullDiskAndLeavesTheDocumentEdited) {
    DocumentWindow& window = opened(desktop.file("cat.txt", "The cat sat."));
    type(window, " The");
    window.textActions().parse->trigger();
    desktop.save = [](const QString&, std::string_view) -> Outcome<Done, SaveFault> {
        return SaveFault{"No space left on device."};
    };
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.failures, QStringList{"cat.txt: No space left on device."});
    EXPECT_TRUE(window.isEdited());
}

TEST_F(Saving, revertsWithoutTouchingTheInputPane) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    DocumentWindow& window = opened(path);
    append(path, " More.");
    type(window, " Typed.");
    emit window.fileMenu()->revertRequested();
    EXPECT_TRUE(window.isEdited()); // the person thought better of it
    desktop.questions.confirms = true;
    emit window.fileMenu()->revertRequested();
    EXPECT_EQ(desktop.documents.documents().front()->theData, "The cat sat. More.");
    EXPECT_EQ(window.panes()->input()->text(), "The cat sat. Typed.");
    EXPECT_FALSE(window.isEdited());
    window.textActions().parse->trigger();
    emit window.fileMenu()->saveRequested();
    EXPECT_EQ(desktop.questions.asked.last(), "other text into cat.txt?");
}

TEST_F(Saving, listsRecentFilesThatAreStillThere) {
    const QString first = desktop.file("a & b.txt", "The");
    const QString second = desktop.file("b.txt", "cat");
    desktop.documents.open({first, second});
    QFile::remove(second);
    QMenu* recent = desktop.window().fileMenu()->recentMenu();
    emit recent->aboutToShow();
    ASSERT_EQ(recent->actions().size(), 3); // a file, a line, and the command to clear
    EXPECT_EQ(recent->actions().first()->text(), "a && b.txt");
    recent->actions().last()->trigger();
    emit recent->aboutToShow();
    EXPECT_EQ(recent->actions().size(), 1);
}

TEST_F(Saving, opensDroppedFilesAndPrints) {
    desktop.documents.newDocument();
    DocumentWindow& window = desktop.window();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(desktop.file("new\nline 🐈.txt", "The cat"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.panes()->input()->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.panes()->input()->viewport(), &drop);
    QApplication::processEvents();
    ASSERT_EQ(desktop.documents.documents().size(), 2U);
    EXPECT_EQ(desktop.window(1).displayName(), "new\nline 🐈.txt");
    EXPECT_EQ(window.panes()->input()->text(), "");
    emit window.fileMenu()->printRequested();
    EXPECT_EQ(desktop.printed, QStringList{"Untitled"});
}

} // namespace
} // namespace lexiform::qt
