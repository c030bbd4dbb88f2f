#include "platform/qt/windows/messageBox.h"

#include "platform/qt/documents/OpenFailure.h"
#include "platform/qt/theme/ApplicationIcon.h"
#include "platform/qt/windows/showAbout.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(MessageBox, takesFileNamesForNoMarkup) {
    QMessageBox box;
    fillMessageBox(box, "“<b>bold</b>.txt” could not be opened.", "It is a folder.");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.text(), "“<b>bold</b>.txt” could not be opened.");
    EXPECT_EQ(box.informativeText(), "It is a folder.");
}

TEST(MessageBox, tellsOfFilesAndWaitsUntilItIsRead) {
    QString read;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        read = box->text();
        box->accept();
    });
    showOpenFailures({{"/tmp/lost.txt", OpenFault::missing}});
    EXPECT_EQ(read, "“lost.txt” could not be opened.");
}

TEST(MessageBox, saysWhatTheProgramIsAndGoesWhenClosed) {
    QCoreApplication::setApplicationVersion("1.2.3");
    QWidget window;
    window.setWindowIcon(applicationIcon());
    showAbout(window);
    const QPointer<QMessageBox> box = window.findChild<QMessageBox*>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "Lexiform 1.2.3");
    box->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(box);
}

} // namespace
} // namespace lexiform::qt
