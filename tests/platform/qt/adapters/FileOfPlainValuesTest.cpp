#include "platform/qt/adapters/fileOfPlainValues.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class FileOfPlainValues : public testing::Test {
protected:
    [[nodiscard]] QString fileOf(const QByteArray& content) const {
        QFile file(folder.filePath("state.ini"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir folder;
};

TEST_F(FileOfPlainValues, staysWhereItIs) {
    const QString path =
        fileOf("[files]\nrecent=/home/ada/notes.txt, \"@@Variant(1).txt\"\nsession=@Invalid()\n");
    EXPECT_EQ(fileOfPlainValues(path), path);
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(FileOfPlainValues, isSetAsideWhenItHoldsAnObject) {
    const QString path = fileOf("[window]\nzoom=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\n");
    EXPECT_EQ(fileOfPlainValues(path), path);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(QFile::exists(path + ".damaged"));
}

TEST_F(FileOfPlainValues, mayBeMissing) {
    const QString path = folder.filePath("none.ini");
    EXPECT_EQ(fileOfPlainValues(path), path);
    EXPECT_FALSE(QFile::exists(path + ".damaged"));
}

} // namespace
} // namespace lexiform::qt
