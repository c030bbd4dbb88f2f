#include "platform/qt/windows/ClassMarkActions.h"

namespace lexiform::qt {

ClassMarkActions::ClassMarkActions(Theme& theme, StateStore& store, QObject* parent)
    : QObject(parent), theme_(theme), store_(store), colourBlind_(addChoice(tr("&Colour-Blind Palette"))),
      underlined_(addChoice(tr("&Underline Classes"))) {
    // Every window has such actions, and all show the same choice.
    connect(&theme_, &Theme::classMarksChanged, this, &ClassMarkActions::tickChoices);
    tickChoices();
}

QAction* ClassMarkActions::addChoice(const QString& title) {
    auto* action = new QAction(title, this);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, &ClassMarkActions::choose);
    return action;
}

void ClassMarkActions::choose() {
    const ClassMarks marks{.palette =
                               colourBlind_->isChecked() ? ClassPalette::colourBlind : ClassPalette::standard,
                           .underlined = underlined_->isChecked()};
    store_.setClassMarks(marks);
    theme_.setClassMarks(marks);
}

void ClassMarkActions::tickChoices() {
    colourBlind_->setChecked(theme_.classMarks().palette == ClassPalette::colourBlind);
    underlined_->setChecked(theme_.classMarks().underlined);
}

} // namespace lexiform::qt
