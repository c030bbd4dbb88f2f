#include "platform/qt/documents/saveFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <thread>

namespace lexiform::qt {
namespace {

class SaveFile : public testing::Test {
protected:
    QString file(const QString& name, const QByteArray& bytes) {
        QFile made(folder.filePath(name));
        if (made.open(QIODevice::WriteOnly)) made.write(bytes);
        return made.fileName();
    }
    static QByteArray contentOf(const QString& path) {
        QFile read(path);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray("no file");
    }
    [[nodiscard]] QStringList names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
};

TEST_F(SaveFile, replacesAFileAndKeepsItsPermissions) {
    const QString path = file("a.txt", "old");
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QFile::setPermissions(path, mode);
    EXPECT_TRUE(saveFile(path, "new").succeeded());
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(QFile::permissions(path), mode);
    EXPECT_EQ(names(), QStringList{"a.txt"});
}

TEST_F(SaveFile, followsALinkAndLeavesIt) {
    const QString path = file("a.txt", "old");
    const QString link = folder.filePath("link.txt");
    QFile::link(path, link);
    EXPECT_TRUE(saveFile(link, "new").succeeded());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(contentOf(path), "new");
}

// A limit on the size of files stands for a disk that fills up while the draft is written.
Outcome<Done, SaveFault> saveOnFullDisk(const QString& path, std::string_view bytes) {
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{10, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    auto outcome = saveFile(path, bytes);
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);
    return outcome;
}

TEST_F(SaveFile, leavesTheOldFileAndNoDraftWhenTheDiskIsFull) {
    const QString path = file("a.txt", "old");
    EXPECT_FALSE(saveOnFullDisk(path, std::string(100'000, 'x')).succeeded());
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(names(), QStringList{"a.txt"});
}

TEST_F(SaveFile, leavesTheOldFileWhenTheDiskHasNoRoomForAShortText) {
    const QString path = file("a.txt", "old");
    const auto outcome = saveOnFullDisk(path, "The cat sat.");
    ASSERT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault().reason, "File too large.");
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(names(), QStringList{"a.txt"});
}

TEST_F(SaveFile, keepsTheNamesOfAFileTogether) {
    const QString path = file("a.txt", "a longer old text");
    const QString name = folder.filePath("b.txt");
    std::filesystem::create_hard_link(path.toStdString(), name.toStdString());
    EXPECT_TRUE(saveFile(name, "new").succeeded());
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_TRUE(saveFile(path, std::string(100'000, 'x')).succeeded());
    EXPECT_EQ(contentOf(name), QByteArray(100'000, 'x'));
    EXPECT_TRUE(saveFile(path, "").succeeded());
    EXPECT_EQ(contentOf(name), "");
    EXPECT_EQ(std::filesystem::hard_link_count(path.toStdString()), 2U);
    EXPECT_EQ(names(), (QStringList{"a.txt", "b.txt"}));
}

TEST_F(SaveFile, leavesAFileOfTwoNamesAsItWasWhenTheDiskIsFull) {
    const QString path = file("a.txt", "old");
    const QString name = folder.filePath("b.txt");
    std::filesystem::create_hard_link(path.toStdString(), name.toStdString());
    const auto outcome = saveOnFullDisk(path, "The cat sat.");
    ASSERT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault().reason, "File too large.");
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(contentOf(name), "old");
}

TEST_F(SaveFile, refusesAFolderAndAPlaceThatIsGone) {
    const auto intoFolder = saveFile(folder.path(), "new");
    ASSERT_FALSE(intoFolder.succeeded());
    EXPECT_EQ(intoFolder.fault().reason, "There is a folder of that name.");
    const auto nowhere = saveFile(folder.filePath("gone/a.txt"), "new");
    ASSERT_FALSE(nowhere.succeeded());
    EXPECT_EQ(nowhere.fault().reason, "Its folder is no longer there.");
}

// The child is killed at some moment of its writing, whichever that is.
TEST_F(SaveFile, leavesOneOfTheTextsWholeWhenTheProgramIsKilled) {
    const QString path = file("a.txt", "old");
    const std::string one(1'000'000, '1');
    const std::string two(1'000'000, '2');
    for (int round = 0; round < 10; ++round) {
        const pid_t writer = fork();
        while (writer == 0)
            if (!saveFile(path, one).succeeded() || !saveFile(path, two).succeeded()) _exit(1);
        ASSERT_GT(writer, 0);
        // A busy machine may take long to start it.
        for (int turn = 0; contentOf(path) == "old" && turn < 1000; ++turn)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::this_thread::sleep_for(std::chrono::milliseconds(10 + round));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        EXPECT_THAT(contentOf(path).toStdString(), testing::AnyOf("old", one, two));
    }
    EXPECT_NE(contentOf(path), "old");
}

} // namespace
} // namespace lexiform::qt
