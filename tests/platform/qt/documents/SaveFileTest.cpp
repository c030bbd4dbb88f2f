#include "platform/qt/documents/saveFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

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

/// A limit on the size of files stands for a disk that fills up.
class FullDisk {
public:
    FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &usual_);
        const rlimit tight{1000, usual_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &usual_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handler_)(int);
    rlimit usual_{};
};

TEST_F(SaveFile, leavesTheOldFileAndNoDraftWhenTheDiskIsFull) {
    const QString path = file("a.txt", "old");
    {
        const FullDisk disk;
        EXPECT_FALSE(saveFile(path, std::string(100'000, 'x')).succeeded());
    }
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
    {
        const FullDisk disk;
        const auto outcome = saveFile(path, std::string(100'000, 'x'));
        ASSERT_FALSE(outcome.succeeded());
        EXPECT_EQ(outcome.fault().reason, "File too large.");
    }
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

} // namespace
} // namespace lexiform::qt
