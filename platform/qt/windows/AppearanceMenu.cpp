#include "platform/qt/windows/AppearanceMenu.h"

namespace lexiform::qt {

AppearanceMenu::AppearanceMenu(Theme& theme, StateStore& store, QWidget* parent)
    : QMenu(tr("&Appearance"), parent), theme_(theme), store_(store), choices_(new QActionGroup(this)) {
    addChoice(tr("&System"), AppearanceChoice::system);
    addChoice(tr("&Light"), AppearanceChoice::light);
    addChoice(tr("&Dark"), AppearanceChoice::dark);
    // Every window has such a menu, and all show the same choice.
    connect(&theme_, &Theme::choiceChanged, this, &AppearanceMenu::tickChoice);
    tickChoice();
}

void AppearanceMenu::addChoice(const QString& title, AppearanceChoice choice) {
    QAction* action = addAction(title);
    action->setCheckable(true);
    action->setData(static_cast<int>(choice));
    choices_->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice] {
        store_.setAppearance(choice);
        theme_.setChoice(choice);
    });
}

void AppearanceMenu::tickChoice() {
    const int current = static_cast<int>(theme_.choice());
    for (QAction* action : choices_->actions())
        action->setChecked(action->data().toInt() == current);
}

} // namespace lexiform::qt
