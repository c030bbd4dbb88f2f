#include "platform/qt/documents/FileTypeDialog.h"

#include "document/Document.h"
#include "platform/qt/documents/FileType.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

/// The dialog on screen in a folder of its own, proposing "story.rtf".
class SaveAsDialog : public testing::Test {
protected:
    SaveAsDialog() : dialog(window, {folder.filePath("story.rtf"), std::string(richTextType)}) {
        dialog.show();
    }

    void chooseType(std::string_view type) {
        QTest::keyClick(dialog.findChild<QComboBox*>("fileTypeCombo"),
                        type == plainTextType ? Qt::Key_Down : Qt::Key_Up);
        EXPECT_EQ(dialog.selectedNameFilter(), nameFilterOf(type));
    }
    [[nodiscard]] QLineEdit& name() const { return *dialog.findChild<QLineEdit*>("fileNameEdit"); }
    SaveTarget accepted() {
        QMetaObject::invokeMethod(&dialog, "accept");
        return dialog.target();
    }

    QTemporaryDir folder;
    QWidget window;
    FileTypeDialog dialog;
};

TEST_F(SaveAsDialog, isTheSameOnEveryDesktop) {
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
}

TEST_F(SaveAsDialog, proposesANameAndAType) {
    EXPECT_EQ(name().text(), "story.rtf");
    EXPECT_EQ(dialog.selectedNameFilter(), nameFilterOf(richTextType));
    const SaveTarget target = accepted();
    EXPECT_EQ(target.path, folder.filePath("story.rtf"));
    EXPECT_EQ(target.type, richTextType);
}

TEST_F(SaveAsDialog, givesTheNameTheExtensionOfAnotherType) {
    chooseType(plainTextType);
    EXPECT_EQ(name().text(), "story.txt");
    chooseType(richTextType);
    EXPECT_EQ(name().text(), "story.rtf");
}

TEST_F(SaveAsDialog, completesANameWithTheExtensionOfItsType) {
    name().setText("v1.2 of it");
    chooseType(plainTextType);
    EXPECT_EQ(name().text(), "v1.2 of it");
    const SaveTarget target = accepted();
    EXPECT_EQ(target.path, folder.filePath("v1.2 of it.txt"));
    EXPECT_EQ(target.type, plainTextType);
}

TEST_F(SaveAsDialog, keepsTheFolderThatWasTypedBeforeTheName) {
    name().setText("../story.rtf");
    chooseType(plainTextType);
    EXPECT_EQ(name().text(), "../story.txt");
}

TEST_F(SaveAsDialog, takesAnotherTypeWithoutAName) {
    name().clear();
    chooseType(plainTextType);
    EXPECT_EQ(name().text(), "");
}

} // namespace
} // namespace lexiform::qt
