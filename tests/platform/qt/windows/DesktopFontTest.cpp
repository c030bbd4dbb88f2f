#include "platform/qt/panes/PaneFont.h"

#include "platform/qt/theme/Theme.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class DesktopFont : public testing::Test {
protected:
    ~DesktopFont() override { QApplication::setFont(before); }

    static void changeTo(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        QApplication::processEvents();
    }

    QFont before = QApplication::font();
    DesktopUnderTest desktop;
    DocumentWindow& window = desktop.typedInto("The cat sat.");
};

TEST_F(DesktopFont, isFollowedByMenusAndCaptionsWhileTheProgramRuns) {
    changeTo(20);
    EXPECT_EQ(window.menuWidget()->font().pointSize(), 20);
    EXPECT_EQ(window.statusLine()->findChild<QLabel*>()->font().pointSize(), 19);
}

TEST_F(DesktopFont, isFollowedByTheTextsWhereItIsLarger) {
    changeTo(9);
    EXPECT_EQ(window.panes()->output()->font().pointSize(), 12);
    changeTo(20);
    EXPECT_EQ(window.panes()->output()->font().pointSize(), 20);
}

TEST_F(DesktopFont, keepsWhatAReaderHasAddedToThePane) {
    window.panes()->input()->setZoom(3);
    changeTo(16);
    EXPECT_EQ(window.panes()->input()->font().pointSize(), 19);
    EXPECT_EQ(window.panes()->input()->zoom(), 3);
}

// Widgets of a program with a style sheet remember the fonts that they were given.
TEST(DesktopFontOfADressedProgram, isFollowedByTheTexts) {
    const QFont before = QApplication::font();
    {
        Theme theme(*qApp, AppearanceChoice::light);
        DesktopUnderTest desktop;
        DocumentWindow& window = desktop.typedInto("The cat sat.");
        window.show();
        QApplication::processEvents();
        QFont font = before;
        font.setPointSize(20);
        QApplication::setFont(font);
        theme.setChoice(AppearanceChoice::dark);
        QApplication::processEvents();
        EXPECT_EQ(window.panes()->output()->font().pointSize(), 20);
        EXPECT_EQ(window.statusLine()->findChild<QLabel*>()->font().pointSize(), 19);
    }
    qApp->setStyleSheet({});
    QApplication::setFont(before);
}

} // namespace
} // namespace lexiform::qt
