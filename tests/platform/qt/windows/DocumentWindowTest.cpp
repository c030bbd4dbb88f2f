#include "platform/qt/windows/DocumentWindow.h"

#include "platform/qt/windows/PopUpBox.h"
#include "tests/platform/qt/support/DesktopUnderTest.h"

#include <QAccessible>
#include <QStandardItemModel>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

QStringList titlesOf(const QComboBox& box) {
    QStringList titles;
    for (int row = 0; row < box.count(); ++row)
        titles.append(box.itemText(row));
    return titles;
}

class DocumentWindowTest : public testing::Test {
protected:
    DesktopUnderTest desktop;
};

TEST_F(DocumentWindowTest, connectsEveryControlOfItsController) {
    desktop.documents.newDocument();
    const ViewController& content = desktop.content();
    EXPECT_TRUE(content.typesPopup.lock());
    EXPECT_TRUE(content.intextScroller.lock());
    EXPECT_TRUE(content.intextTextbox);
    EXPECT_TRUE(content.outtextScroller.lock());
    EXPECT_TRUE(content.outtextTextbox);
    EXPECT_TRUE(content.concordScroller.lock());
    EXPECT_TRUE(content.concordTextbox);
    EXPECT_TRUE(content.colourKeyText);
    EXPECT_TRUE(content.progressSpinner);
    ASSERT_TRUE(content.view.lock());
    EXPECT_TRUE(content.view.lock()->window());
}

TEST_F(DocumentWindowTest, makesItsControllerTheWindowsDelegate) {
    desktop.documents.newDocument();
    auto* window = dynamic_cast<QtWindow*>(desktop.content().view.lock()->window());
    ASSERT_TRUE(window);
    EXPECT_EQ(window->delegate().get(), &desktop.content());
}

TEST_F(DocumentWindowTest, fillsAndDisablesTheTypesPopUpEachTimeItComesOnScreen) {
    desktop.documents.newDocument();
    const PopUpBox& popUp = *desktop.window().toolBar()->typesPopUp();
    const QStringList titles = {"Script", "Language", "Types", "Types (std)", "Lemmas"};
    for (int showing = 1; showing <= 2; ++showing) {
        EXPECT_EQ(titlesOf(popUp), titles);
        EXPECT_EQ(popUp.currentIndex(), 2);
        EXPECT_FALSE(popUp.isEnabled());
        desktop.window().hide();
        desktop.window().toolBar()->typesPopUp()->setEnabled(true);
        desktop.window().show();
    }
}

TEST_F(DocumentWindowTest, hidesTheBusyLineAndKeepsItsPlace) {
    desktop.documents.newDocument();
    desktop.window().resize(1280, 800);
    QApplication::processEvents();
    auto* busy = desktop.window().findChild<BusyLine*>();
    EXPECT_FALSE(busy->isVisible());
    const int top = desktop.window().panes()->y();
    desktop.content().progressSpinner->setHidden(false);
    QApplication::processEvents();
    EXPECT_TRUE(busy->isVisible());
    EXPECT_EQ(desktop.window().panes()->y(), top);
}

TEST_F(DocumentWindowTest, parsesOnTheParseCommand) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    EXPECT_EQ(window.panes()->output()->text(), "");
    window.textActions().parse->trigger();
    EXPECT_EQ(window.panes()->output()->text(), "The cat sat.");
    EXPECT_EQ(window.panes()->output()->paintedColourAt(4), valueOf(Colour::blue, Appearance::light));
    EXPECT_EQ(window.panes()->key()->text(), ViewController::stdColourKeys);
}

TEST_F(DocumentWindowTest, parsesWhenTheToolButtonIsPressedWithTheKeyboard) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    QWidget* button = window.toolBar()->widgetForAction(window.textActions().parse);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(window.panes()->output()->text(), "The cat sat.");
}

TEST_F(DocumentWindowTest, parsesOnItsShortcuts) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    QApplication::setActiveWindow(&window);
    QTest::keyClick(window.panes()->input(), Qt::Key_F5);
    EXPECT_EQ(desktop.tagger->made, 1);
    QTest::keyClick(window.panes()->input(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(desktop.tagger->made, 2);
}

TEST_F(DocumentWindowTest, restoresTheCursorAfterAPass) {
    desktop.typedInto("The cat sat.").textActions().parse->trigger();
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(DocumentWindowTest, givesAllFiveControlsANameAndAToolTipAndTheKeyboard) {
    desktop.documents.newDocument();
    const DocumentWindow& window = desktop.window();
    QStringList names;
    for (QAction* action : {window.textActions().parse, window.textActions().multiParse,
                            window.textActions().listWords, window.textActions().saveList}) {
        const auto* button = qobject_cast<QToolButton*>(window.toolBar()->widgetForAction(action));
        names.append(button->text());
        EXPECT_FALSE(button->toolTip().isEmpty());
        EXPECT_FALSE(button->icon().isNull());
        EXPECT_EQ(button->focusPolicy(), Qt::TabFocus);
    }
    EXPECT_EQ(names, (QStringList{"Parse", "Multi-parse", "List words", "Save list…"}));
    EXPECT_FALSE(window.toolBar()->typesPopUp()->toolTip().isEmpty());
}

TEST_F(DocumentWindowTest, tellsScreenReadersWhatThePopUpIsForAndWhatItShows) {
    desktop.documents.newDocument();
    QAccessibleInterface* box =
        QAccessible::queryAccessibleInterface(desktop.window().toolBar()->typesPopUp());
    const auto labels = box->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.first().first->text(QAccessible::Name), "Show");
    EXPECT_EQ(box->text(QAccessible::Value), "Types");
}

TEST_F(DocumentWindowTest, saysInTheStatusLineHowManyWordsWereParsed) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    EXPECT_EQ(window.statusLine()->text(), "Not parsed yet");
    window.textActions().parse->trigger();
    EXPECT_EQ(window.statusLine()->text(), "3 words, parsed");
    window.panes()->input()->insertPlainText(" The");
    EXPECT_EQ(window.statusLine()->text(), "Not parsed yet");
    window.panes()->input()->clear();
    EXPECT_EQ(window.statusLine()->text(), "");
}

TEST_F(DocumentWindowTest, countsNoWordsWhereNoneHasAClass) {
    DocumentWindow& window = desktop.typedInto("17 + 4");
    window.textActions().parse->trigger();
    EXPECT_EQ(window.statusLine()->text(), "Parsed");
}

TEST_F(DocumentWindowTest, repaintsItsTextInTheColoursOfTheOtherAppearance) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    window.textActions().parse->trigger();
    desktop.theme.setChoice(AppearanceChoice::dark);
    QApplication::processEvents();
    EXPECT_EQ(window.panes()->output()->paintedColourAt(4), valueOf(Colour::blue, Appearance::dark));
    const QImage image = window.grab().toImage();
    EXPECT_EQ(image.pixelColor(2, 2), surfacesOf(Appearance::dark).window);
    desktop.theme.setChoice(AppearanceChoice::light);
    QApplication::processEvents();
    EXPECT_EQ(window.panes()->output()->paintedColourAt(4), valueOf(Colour::blue, Appearance::light));
    EXPECT_EQ(window.grab().toImage().pixelColor(2, 2), surfacesOf(Appearance::light).window);
}

TEST_F(DocumentWindowTest, runsNoPassWhenTheAppearanceChanges) {
    DocumentWindow& window = desktop.typedInto("The cat sat.");
    window.textActions().parse->trigger();
    desktop.theme.setChoice(AppearanceChoice::dark);
    QApplication::processEvents();
    EXPECT_EQ(desktop.tagger->made, 1);
}

TEST_F(DocumentWindowTest, showsTheAppearanceChoiceInEveryWindow) {
    desktop.documents.newDocument();
    desktop.documents.newDocument();
    const auto action = [&](std::size_t window, const char* title) -> QAction* {
        for (QAction* each : desktop.window(window).findChildren<QAction*>())
            if (each->text() == QLatin1String(title)) return each;
        return nullptr;
    };
    action(0, "&Dark")->trigger();
    EXPECT_EQ(desktop.theme.appearance(), Appearance::dark);
    EXPECT_EQ(desktop.store.appearance(), AppearanceChoice::dark);
    EXPECT_TRUE(action(1, "&Dark")->isChecked());
    EXPECT_FALSE(action(1, "&Light")->isChecked());
}

TEST_F(DocumentWindowTest, titlesItsFullScreenCommandByWhatItDoes) {
    desktop.documents.newDocument();
    QAction* action = nullptr;
    for (QAction* each : desktop.window().findChildren<QAction*>())
        if (each->shortcut() == QKeySequence(Qt::Key_F11)) action = each;
    ASSERT_TRUE(action);
    EXPECT_EQ(action->text(), "Enter &Full Screen");
    action->trigger();
    QApplication::processEvents();
    EXPECT_TRUE(desktop.window().isFullScreen());
    EXPECT_EQ(action->text(), "Leave &Full Screen");
    action->trigger();
    QApplication::processEvents();
    EXPECT_FALSE(desktop.window().isFullScreen());
}

TEST_F(DocumentWindowTest, titlesItselfWithNothingButItsName) {
    desktop.documents.newDocument();
    desktop.window().setDisplayName("notes [*] draft.txt");
    EXPECT_EQ(desktop.window().windowHandle()->title(), "notes [*] draft.txt");
}

TEST_F(DocumentWindowTest, outlivesNothingThatItsControllerNeeds) {
    const auto scene = std::dynamic_pointer_cast<WindowController>(desktop.makeScene());
    const auto content = std::dynamic_pointer_cast<ViewController>(scene->contentViewController());
    content->setInputText("The cat sat.");
    delete std::dynamic_pointer_cast<QtWindowController>(scene)->window();

    content->parseText();
    EXPECT_EQ(content->intextTextbox->plainText(), "");
    content->colourKeyText->setStringValue("verb");
    content->progressSpinner->setHidden(false);
    EXPECT_FALSE(content->typesPopup.lock());
    EXPECT_FALSE(content->view.lock());
}

TEST_F(DocumentWindowTest, isDeletedWithTheLastThatHoldsItsController) {
    auto scene = std::dynamic_pointer_cast<QtWindowController>(desktop.makeScene());
    const QPointer<QWidget> window = scene->window();
    const std::weak_ptr<ViewControllerBase> content = scene->contentViewController();
    window->show();
    window->close();
    EXPECT_TRUE(window);
    scene.reset();
    EXPECT_FALSE(window);
    EXPECT_TRUE(content.expired());
}

} // namespace
} // namespace lexiform::qt
