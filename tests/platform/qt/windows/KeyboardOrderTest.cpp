#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class KeyboardOrder : public testing::Test {
protected:
    KeyboardOrder() {
        QApplication::setActiveWindow(&window);
        window.panes()->input()->setFocus();
        QApplication::processEvents();
    }

    static QString nameOf(QWidget* widget) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        return accessible ? accessible->text(QAccessible::Name) : QString();
    }

    // In the input a tab belongs to the text, and Ctrl moves on.
    void step(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QWidget* const at = QApplication::focusWidget();
        if (at == window.panes()->input()) modifiers |= Qt::ControlModifier;
        QTest::keyClick(at, key, modifiers);
    }

    // The names of all that has the keyboard, one after the other, until it comes back to the first.
    QStringList walk(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        constexpr qsizetype enough = 30;
        QStringList names;
        QWidget* const first = QApplication::focusWidget();
        do {
            names.append(nameOf(QApplication::focusWidget()));
            step(key, modifiers);
        } while (QApplication::focusWidget() != first && names.size() < enough);
        return names;
    }

    DesktopUnderTest desktop;
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    QStringList panes{"Input", "Output", "Key", "Concordance"};
    QStringList tools{"Parse", "Multi-parse", "List words", "Save list…"};
};

TEST_F(KeyboardOrder, goesFromLeftToRightThroughThePanesAndTheToolBar) {
    EXPECT_EQ(walk(Qt::Key_Tab), panes + tools);
}

TEST_F(KeyboardOrder, goesBackTheSameWay) {
    QStringList back = panes + tools;
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(walk(Qt::Key_Backtab, Qt::ShiftModifier), back);
}

TEST_F(KeyboardOrder, takesInThePopUpOnceItCanBeUsed) {
    window.textActions().multiParse->trigger();
    tools.insert(2, "Types");
    EXPECT_EQ(walk(Qt::Key_Tab), panes + tools);
}

TEST_F(KeyboardOrder, takesInTheFindBarAfterThePanes) {
    window.findBar()->open("Input", {});
    window.panes()->input()->setFocus();
    // The bar searches the pane that had the keyboard last.
    const QStringList bar{"Find in Concordance", "Previous",           "Next", "Match case",
                          "Whole word",          "Regular expression", "Close"};
    EXPECT_EQ(walk(Qt::Key_Tab), panes + bar + tools);
}

} // namespace
} // namespace lexiform::qt
