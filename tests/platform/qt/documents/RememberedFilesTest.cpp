#include "platform/qt/documents/RememberedFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class RememberedFilesTest : public testing::Test {
protected:
    [[nodiscard]] QString file(const QString& name, const QByteArray& bytes) const {
        QFile made(folder.filePath(name));
        if (made.open(QIODevice::WriteOnly)) made.write(bytes);
        return made.fileName();
    }

    QTemporaryDir folder;
};

TEST_F(RememberedFilesTest, areThoseOfOtherInstancesTooAndNoneInADamagedStore) {
    const QString store = file("documents.ini", QByteArray("\0\xFF[files\n=;recent==,,", 21));
    RememberedFiles one(store);
    RememberedFiles other(store);
    EXPECT_EQ(one.recent(), QStringList());
    EXPECT_FALSE(one.reopens());
    const QString a = file("a.txt", "a");
    const QString b = file("b.txt", "b");
    one.noteOpened(a);
    other.noteOpened(b);
    one.noteOpened(a);
    EXPECT_EQ(other.recent(), (QStringList{a, b}));
    one.setReopens(true);
    one.setSession({a, folder.filePath("gone.txt")});
    EXPECT_TRUE(other.reopens());
    EXPECT_EQ(other.session(), QStringList{a});
}

TEST_F(RememberedFilesTest, areNoMoreThanAMenuHolds) {
    const QString a = file("a.txt", "a");
    const QString store =
        file("documents.ini", "[files]\nrecent=" + QStringList(1000, a).join(", ").toUtf8());
    EXPECT_EQ(RememberedFiles(store).recent(), QStringList(RememberedFiles::mostRecent, a));
}

} // namespace
} // namespace lexiform::qt
