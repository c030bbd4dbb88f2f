#pragma once

#include "platform/qt/theme/Theme.h"
#include "platform/qt/windows/StateStore.h"

#include <QActionGroup>
#include <QMenu>

namespace lexiform::qt {

/// Chooses between the desktop's appearance, light and dark, and remembers the choice.
class AppearanceMenu : public QMenu {
    Q_OBJECT

public:
    /// `theme` and `store` must outlive the menu.
    AppearanceMenu(Theme& theme, StateStore& store, QWidget* parent);

private:
    void addChoice(const QString& title, AppearanceChoice choice);
    void tickChoice();

    Theme& theme_;
    StateStore& store_;
    QActionGroup* choices_;
};

} // namespace lexiform::qt
