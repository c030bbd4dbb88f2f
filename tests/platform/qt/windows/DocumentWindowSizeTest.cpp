#include "platform/qt/windows/DocumentWindow.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QMenuBar>
#include <QScreen>
#include <QStyle>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class DocumentWindowSize : public testing::Test {
protected:
    DesktopUnderTest desktop;
};

TEST_F(DocumentWindowSize, growsItsBarsWithTheFont) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(28);
    QApplication::setFont(large);
    desktop.documents.newDocument();
    QApplication::processEvents();
    const DocumentWindow& window = desktop.window();
    EXPECT_GE(window.menuBar()->height(), QFontMetrics(large).height());
    EXPECT_GE(window.toolBar()->typesPopUp()->height(), QFontMetrics(large).height());
    EXPECT_GE(window.toolBar()->height(), window.toolBar()->typesPopUp()->height());
    QApplication::setFont(before);
}

TEST_F(DocumentWindowSize, laysItsBarsOutAsDrawn) {
    desktop.documents.newDocument();
    QApplication::processEvents();
    const DocumentWindow& window = desktop.window();
    EXPECT_EQ(window.menuBar()->height(), 30);
    EXPECT_EQ(window.toolBar()->height(), 44);
    EXPECT_EQ(window.statusLine()->height(), 30);
    EXPECT_EQ(window.panes()->mapTo(&window, QPoint()), QPoint(8, 80));
}

TEST_F(DocumentWindowSize, opensAtItsDefaultSizeOrAsLargeAsTheScreenBelowItsTitleBar) {
    desktop.documents.newDocument();
    const DocumentWindow& window = desktop.window();
    const QSize titleBar(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    EXPECT_EQ(window.size(), QSize(1280, 800).boundedTo(window.screen()->availableSize() - titleBar));
}

TEST_F(DocumentWindowSize, fitsASmallScreen) {
    desktop.documents.newDocument();
    desktop.window().resize(1024, 600);
    QApplication::processEvents();
    EXPECT_EQ(desktop.window().size(), QSize(1024, 600));
    EXPECT_EQ(desktop.window().panes()->sizes(), (QList<int>{318, 318, 164, 184}));
}

TEST_F(DocumentWindowSize, opensWithTheSizeAndThePanesOfTheLastTime) {
    desktop.store.setWindowSize("window", {780, 560});
    desktop.store.setPaneSizes({210, 220, 152, 158});
    desktop.documents.newDocument();
    QApplication::processEvents();
    EXPECT_EQ(desktop.window().size(), QSize(780, 560));
    EXPECT_EQ(desktop.window().panes()->sizes(), (QList<int>{210, 220, 152, 158}));
}

TEST_F(DocumentWindowSize, remembersItsSizeWhenItCloses) {
    desktop.documents.newDocument();
    desktop.window().resize(777, 555);
    desktop.window().close();
    EXPECT_EQ(desktop.store.windowSize("window"), QSize(777, 555));
}

TEST_F(DocumentWindowSize, remembersNoSizeOfAFullScreen) {
    desktop.documents.newDocument();
    desktop.window().showFullScreen();
    QApplication::processEvents();
    desktop.window().close();
    EXPECT_FALSE(desktop.store.windowSize("window").isValid());
}

TEST_F(DocumentWindowSize, remembersThePanesWhenTheyAreArranged) {
    desktop.documents.newDocument();
    emit desktop.window().panes()->arranged({210, 220, 160, 170});
    EXPECT_EQ(desktop.store.paneSizes(), (QList<int>{210, 220, 160, 170}));
}

} // namespace
} // namespace lexiform::qt
