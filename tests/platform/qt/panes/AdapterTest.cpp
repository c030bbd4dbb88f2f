#include "platform/qt/adapters/QtScrollView.h"
#include "platform/qt/adapters/QtTextPane.h"
#include "platform/qt/panes/InputTextEdit.h"
#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/theme/Palette.h"

#include <QTextBlock>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <memory>

namespace lexiform::qt {

TEST(QtTextPane, givesAndTakesTextThroughItsStorage) {
    OutputTextEdit edit;
    edit.setPalette(paletteOf(Appearance::light));
    QtTextPane pane(&edit);
    ASSERT_NE(pane.textStorage(), nullptr);
    pane.textStorage()->replace(AttributedText("one\r\n", Colour::red));
    pane.textStorage()->append(AttributedText("two", Colour::blue));
    EXPECT_EQ(pane.plainText(), "one\r\ntwo");
    EXPECT_EQ(edit.paintedColourAt(0), valueOf(Colour::red, Appearance::light));
    EXPECT_EQ(edit.paintedColourAt(4), valueOf(Colour::blue, Appearance::light));
}

TEST(QtTextPane, takesAnEditablePanesTextWithoutColours) {
    InputTextEdit edit;
    QtTextPane pane(&edit);
    pane.textStorage()->replace(AttributedText("given", Colour::red));
    EXPECT_EQ(pane.plainText(), "given");
    EXPECT_TRUE(edit.document()->begin().layout()->formats().isEmpty());
    EXPECT_FALSE(edit.document()->isUndoAvailable());
}

TEST(QtTextPane, holdsNothingOnceItsWidgetIsGone) {
    auto edit = std::make_unique<OutputTextEdit>();
    QtTextPane pane(edit.get());
    pane.replace(AttributedText("text", Colour::red));
    edit.reset();
    EXPECT_EQ(pane.plainText(), "");
    EXPECT_EQ(pane.textStorage(), nullptr);
    pane.replace(AttributedText("text", Colour::red));
    pane.append(AttributedText("text", Colour::red));
}

TEST(QtScrollView, knowsItsWidgetWhileItLives) {
    auto* window = new QWidget;
    auto* edit = new OutputTextEdit(window);
    const QtScrollView view(edit);
    EXPECT_EQ(view.widget(), edit);
    delete window;
    EXPECT_EQ(view.widget(), nullptr);
}

} // namespace lexiform::qt
