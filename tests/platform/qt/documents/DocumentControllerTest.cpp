#include "platform/qt/documents/DocumentController.h"

#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace lexiform::qt {
namespace {

class DocumentControllerTest : public testing::Test {
protected:
    [[nodiscard]] std::size_t openCount() const { return desktop.documents.documents().size(); }

    // The one failure that was told of.
    [[nodiscard]] OpenFault toldFault() const {
        EXPECT_EQ(desktop.told.size(), 1U);
        EXPECT_EQ(desktop.told.at(0).size(), 1U);
        return desktop.told.at(0).at(0).fault;
    }

    DesktopUnderTest desktop;
};

TEST_F(DocumentControllerTest, opensAnEmptyUntitledWindow) {
    desktop.documents.newDocument();
    ASSERT_EQ(openCount(), 1U);
    EXPECT_TRUE(desktop.window().isVisible());
    EXPECT_EQ(desktop.window().windowTitle(), "Untitled");
    EXPECT_EQ(desktop.window().panes()->input()->text(), "");
    EXPECT_EQ(desktop.window().panes()->output()->text(), "");
    EXPECT_EQ(desktop.window().panes()->key()->text(), "");
    EXPECT_EQ(desktop.tagger->made, 0);
}

TEST_F(DocumentControllerTest, numbersFurtherUntitledWindows) {
    for (int count = 0; count < 3; ++count)
        desktop.documents.newDocument();
    EXPECT_EQ(desktop.window(0).windowTitle(), "Untitled");
    EXPECT_EQ(desktop.window(1).windowTitle(), "Untitled 2");
    EXPECT_EQ(desktop.window(2).windowTitle(), "Untitled 3");
}

TEST_F(DocumentControllerTest, showsAFileColouredWithTheKeyBesideIt) {
    EXPECT_TRUE(desktop.documents.open({desktop.file("cat.txt", "The cat sat.")}));
    ASSERT_EQ(openCount(), 1U);
    DocumentPanes& panes = *desktop.window().panes();
    EXPECT_EQ(desktop.window().windowTitle(), "cat.txt");
    EXPECT_EQ(panes.input()->text(), "The cat sat.");
    EXPECT_EQ(panes.output()->text(), "The cat sat.");
    EXPECT_EQ(panes.output()->paintedColourAt(0), valueOf(Colour::brown, Appearance::light));
    EXPECT_EQ(panes.output()->paintedColourAt(8), valueOf(Colour::red, Appearance::light));
    EXPECT_EQ(panes.key()->text(), ViewController::stdColourKeys);
    EXPECT_EQ(panes.concordance()->text(), "");
    EXPECT_EQ(desktop.window().statusLine()->text(), "3 words, parsed");
}

TEST_F(DocumentControllerTest, readsAFileAsPlainTextFromItsPath) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    desktop.documents.open({path});
    const Document& document = *desktop.documents.documents().front();
    EXPECT_EQ(document.theType, plainTextType);
    EXPECT_EQ(document.thePath, path.toStdString());
    EXPECT_EQ(document.theData, "The cat sat.");
}

TEST_F(DocumentControllerTest, opensAFileThatIsNotUtf8WithAnEmptyPane) {
    EXPECT_TRUE(desktop.documents.open({desktop.file("latin.txt", "caf\xE9")}));
    EXPECT_EQ(desktop.window().panes()->input()->text(), "");
    EXPECT_TRUE(desktop.told.empty());
}

TEST_F(DocumentControllerTest, refusesAnEmptyFile) {
    EXPECT_FALSE(desktop.documents.open({desktop.file("empty.txt", "")}));
    EXPECT_EQ(toldFault(), OpenFault::refused);
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(DocumentControllerTest, tellsOfAFileThatIsNotThere) {
    EXPECT_FALSE(desktop.documents.open({desktop.folder() + "/nowhere.txt"}));
    EXPECT_EQ(toldFault(), OpenFault::missing);
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(DocumentControllerTest, tellsOfAFolder) {
    EXPECT_FALSE(desktop.documents.open({desktop.folder()}));
    EXPECT_EQ(toldFault(), OpenFault::folder);
}

TEST_F(DocumentControllerTest, tellsOfADevice) {
    EXPECT_FALSE(desktop.documents.open({"/dev/zero"}));
    EXPECT_EQ(toldFault(), OpenFault::notAFile);
}

TEST_F(DocumentControllerTest, tellsOfAFileThatIsTooLargeWithoutReadingIt) {
    const QString path = desktop.file("endless.txt", "");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize((qint64{1} << 30) + 1)); // takes no room on the disk
    EXPECT_FALSE(desktop.documents.open({path}));
    EXPECT_EQ(toldFault(), OpenFault::tooLarge);
}

/// The superuser may read everything: for its lifetime the test is somebody else.
class NoSuperuser {
public:
    NoSuperuser() : isSuperuser_(geteuid() == 0) { become(nobody); }
    ~NoSuperuser() { become(0); }
    NoSuperuser(const NoSuperuser&) = delete;
    NoSuperuser& operator=(const NoSuperuser&) = delete;

private:
    static constexpr uid_t nobody = 65534;

    void become(uid_t user) const {
        if (isSuperuser_ && seteuid(user) != 0) std::abort();
    }

    bool isSuperuser_;
};

TEST_F(DocumentControllerTest, tellsOfAFileThatMayNotBeRead) {
    const QString path = desktop.file("secret.txt", "The cat sat.");
    QFile::setPermissions(path, {});
    QFile::setPermissions(desktop.folder(), QFile::Permissions(0x7755)); // anybody may look into it
    const NoSuperuser anybody;
    EXPECT_FALSE(desktop.documents.open({path}));
    EXPECT_EQ(toldFault(), OpenFault::notAllowed);
}

TEST_F(DocumentControllerTest, tellsOfAllFailuresAtOnceAndOpensTheRest) {
    const QString good = desktop.file("cat.txt", "The cat sat.");
    EXPECT_TRUE(desktop.documents.open({desktop.folder(), good, desktop.file("empty.txt", "")}));
    ASSERT_EQ(desktop.told.size(), 1U);
    EXPECT_EQ(desktop.told.front().size(), 2U);
    EXPECT_EQ(openCount(), 1U);
}

TEST_F(DocumentControllerTest, bringsAnOpenFileForwardInsteadOfOpeningItAgain) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    desktop.documents.open({path});
    desktop.documents.newDocument();
    EXPECT_TRUE(desktop.documents.open({path}));
    EXPECT_EQ(openCount(), 2U);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
}

TEST_F(DocumentControllerTest, knowsAFileByAnotherPath) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    const QString link = desktop.folder() + "/link.txt";
    const QString name = desktop.folder() + "/name.txt";
    QFile::link(path, link);
    std::filesystem::create_hard_link(path.toStdString(), name.toStdString());
    desktop.documents.open(
        {path, link, name, desktop.folder() + "/../" + QDir(desktop.folder()).dirName() + "/cat.txt"});
    EXPECT_EQ(openCount(), 1U);
}

TEST_F(DocumentControllerTest, opensTheFilesThatTheUserChooses) {
    desktop.chosen = {desktop.file("a.txt", "The cat"), desktop.file("b.txt", "sat")};
    desktop.documents.newDocument();
    emit desktop.window().fileMenu()->openRequested();
    EXPECT_EQ(openCount(), 3U);
}

TEST_F(DocumentControllerTest, opensNothingWhenTheUserChoosesNothing) {
    desktop.documents.newDocument();
    emit desktop.window().fileMenu()->openRequested();
    EXPECT_EQ(openCount(), 1U);
    EXPECT_TRUE(desktop.told.empty());
}

TEST_F(DocumentControllerTest, dropsADocumentWithItsWindowAndLeavesTheOthers) {
    desktop.documents.open({desktop.file("a.txt", "The cat"), desktop.file("b.txt", "sat")});
    const QPointer<QWidget> closing = &desktop.window(0);
    const std::weak_ptr<Document> dropped = desktop.documents.documents().front();
    closing->close();
    QApplication::processEvents();
    EXPECT_FALSE(closing);
    EXPECT_TRUE(dropped.expired());
    ASSERT_EQ(openCount(), 1U);
    EXPECT_EQ(desktop.window().windowTitle(), "b.txt");
    desktop.window().textActions().parse->trigger();
    EXPECT_EQ(desktop.window().panes()->output()->text(), "sat");
}

TEST_F(DocumentControllerTest, leavesTheDocumentAliveForWhoeverHoldsIt) {
    desktop.documents.open({desktop.file("cat.txt", "The cat sat.")});
    const std::shared_ptr<Document> held = desktop.documents.documents().front();
    desktop.window().close();
    QApplication::processEvents();
    EXPECT_EQ(openCount(), 0U);
    DesktopUnderTest::windowOf(*held).show();
    EXPECT_EQ(desktop.tagger->made, 2);
    EXPECT_EQ(DesktopUnderTest::windowOf(*held).panes()->output()->text(), "The cat sat.");
}

TEST_F(DocumentControllerTest, opensAFileAgainAfterItsWindowWasClosed) {
    const QString path = desktop.file("cat.txt", "The cat sat.");
    desktop.documents.open({path});
    desktop.window().close();
    EXPECT_TRUE(desktop.documents.open({path}));
    QApplication::processEvents();
    ASSERT_EQ(openCount(), 1U);
    EXPECT_TRUE(desktop.window().isVisible());
}

TEST_F(DocumentControllerTest, endsTheProgramWithTheLastWindow) {
    desktop.documents.newDocument();
    desktop.documents.newDocument();
    int left = 2;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] { desktop.window(0).close(), --left; });
    closing.start(10);
    QTimer::singleShot(5000, &closing, [] { QApplication::exit(EXIT_FAILURE); });
    EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
    EXPECT_EQ(left, 0);
}

TEST_F(DocumentControllerTest, listsTheOpenWindowsInOrder) {
    desktop.documents.open({desktop.file("a.txt", "The"), desktop.file("b.txt", "cat")});
    desktop.documents.newDocument();
    desktop.window(1).close();
    QStringList titles;
    for (const QWidget* window : desktop.windows.windows())
        titles.append(window->windowTitle());
    EXPECT_EQ(titles, (QStringList{"a.txt", "Untitled"}));
}

} // namespace
} // namespace lexiform::qt
