#include "app/windows/PaletteViewController.h"
#include "tests/support/SpokenDoubles.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

class Palette : public testing::Test {
protected:
    Palette() {
        controller->view = view;
        controller->paletteKeyText = field;
    }

    std::shared_ptr<PlainUserDefaults> defaults = std::make_shared<PlainUserDefaults>();
    std::shared_ptr<PlainView> view = std::make_shared<PlainView>();
    std::shared_ptr<PlainTextField> field = std::make_shared<PlainTextField>();
    std::shared_ptr<PaletteViewController> controller = std::make_shared<PaletteViewController>(defaults);
};
using PaletteDeathTest = Palette;

TEST_F(Palette, hasPlaceholdersOfThreeAndFourMarksBeforeAnyKeyWasListed) {
    controller->viewDidLoad();
    controller->viewDidAppear();
    EXPECT_EQ(field->value, "???");
    EXPECT_EQ(view->ownWindow.ownTitle, "????");
}

TEST_F(Palette, showsTheStoredKeyAndTitleAndIsTheDelegateOfItsWindow) {
    defaults->setString("Latn\n\nGrek", "theKeyStr");
    defaults->setString("letters.txt", "windowTitle");
    controller->viewDidAppear();
    EXPECT_EQ(field->value, "Latn\n\nGrek");
    EXPECT_EQ(view->ownWindow.ownTitle, "letters.txt");
    EXPECT_EQ(view->ownWindow.delegate.lock(), controller);
}

TEST_F(Palette, showsEmptyStringsThatAreStored) {
    defaults->setString("", "theKeyStr");
    defaults->setString("", "windowTitle");
    controller->viewDidAppear();
    EXPECT_EQ(field->value, "");
    EXPECT_EQ(view->ownWindow.ownTitle, "");
}

TEST_F(Palette, showsLaterValuesOnlyWhenItAppearsAgain) {
    controller->viewDidAppear();
    defaults->setString("en, fr", "theKeyStr");
    EXPECT_EQ(field->value, "???");
    controller->viewDidAppear();
    EXPECT_EQ(field->value, "en, fr");
}

TEST_F(PaletteDeathTest, stopsWithoutItsField) {
    controller->paletteKeyText = nullptr;
    EXPECT_DEATH(controller->viewDidAppear(), "not connected");
}

TEST_F(PaletteDeathTest, stopsInNoWindowAfterTheKeyIsShown) {
    controller->paletteKeyText = std::make_shared<SpokenField>();
    view->inWindow = false;
    EXPECT_DEATH(controller->viewDidAppear(), "key;fatal error: .*no window");
    view.reset();
    EXPECT_DEATH(controller->viewDidAppear(), "key;fatal error: .*no window");
}

} // namespace
} // namespace lexiform
