#include "platform/qt/panes/PaneFrame.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/theme/Palette.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace lexiform::qt {

namespace {

class FramedPane : public testing::Test {
protected:
    FramedPane() {
        window.setPalette(paletteOf(Appearance::light));
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(frame);
        layout->addWidget(elsewhere);
        window.resize(300, 300);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        elsewhere->setFocus();
    }

    QColor pixel(int x, int y) { return frame->grab().toImage().pixelColor(x, y); }

    QWidget window;
    OutputTextEdit* pane = new OutputTextEdit;
    PaneFrame* frame = new PaneFrame("Output", pane);
    QLineEdit* elsewhere = new QLineEdit;
};

const Surfaces& light = surfacesOf(Appearance::light);

} // namespace

TEST_F(FramedPane, hasAHairlineAtRestAndARingWithTheKeyboard) {
    const int middle = frame->height() / 2;
    EXPECT_EQ(pixel(0, middle), light.paneBorder);
    EXPECT_EQ(pixel(1, middle), light.pane);
    pane->setFocus();
    EXPECT_EQ(pixel(0, middle), light.focus);
    EXPECT_EQ(pixel(1, middle), light.focus);
    EXPECT_EQ(pixel(2, middle), light.pane);
    EXPECT_EQ(pixel(frame->width() - 1, middle), light.focus);
    EXPECT_EQ(pixel(frame->width() / 2, frame->height() - 1), light.focus);
    elsewhere->setFocus();
    EXPECT_EQ(pixel(0, middle), light.paneBorder);
}

TEST_F(FramedPane, isRounded) {
    EXPECT_EQ(pixel(0, 0), light.window);
    EXPECT_EQ(pixel(frame->width() - 1, frame->height() - 1), light.window);
}

TEST_F(FramedPane, showsThePaneSurfaceBehindTheText) {
    EXPECT_EQ(pixel(60, 120), light.pane);
    window.setPalette(paletteOf(Appearance::dark));
    EXPECT_EQ(pixel(60, 120), surfacesOf(Appearance::dark).pane);
    EXPECT_EQ(pixel(0, 120), surfacesOf(Appearance::dark).paneBorder);
}

TEST_F(FramedPane, standsItsHeadingOverTheText) {
    pane->replaceText(AttributedText("HHHH", Colour::text));
    const QImage image = frame->grab().toImage();
    const auto firstInk = [&](int top, int bottom) {
        for (int x = 4; x < image.width(); ++x)
            for (int y = top; y < bottom; ++y)
                if (image.pixelColor(x, y).lightness() < 150) return x;
        return -1;
    };
    EXPECT_NEAR(firstInk(4, 40), 24, 2);
    EXPECT_NEAR(firstInk(44, 64), 24, 3);
}

TEST_F(FramedPane, givesTheKeyboardToItsText) {
    frame->setFocus();
    EXPECT_TRUE(pane->hasFocus());
}

TEST_F(FramedPane, hasAnAccessibleNameAndText) {
    EXPECT_EQ(frame->accessibleName(), QStringLiteral("Output"));
    pane->replaceText(AttributedText("some words", Colour::red));
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(pane);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Output"));
    EXPECT_EQ(accessible->role(), QAccessible::EditableText);
    EXPECT_TRUE(accessible->state().readOnly);
    ASSERT_NE(accessible->textInterface(), nullptr);
    EXPECT_EQ(accessible->textInterface()->text(5, 10), QStringLiteral("words"));
}

} // namespace lexiform::qt
