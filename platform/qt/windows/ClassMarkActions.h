#pragma once

#include "platform/qt/theme/Theme.h"
#include "platform/qt/windows/StateStore.h"

#include <QAction>
#include <QList>

namespace lexiform::qt {

/// Chooses how the classes of words are told apart on the screen, and remembers the choice.
class ClassMarkActions : public QObject {
    Q_OBJECT

public:
    /// `theme` and `store` must outlive the actions, which this object owns.
    ClassMarkActions(Theme& theme, StateStore& store, QObject* parent);

    [[nodiscard]] QList<QAction*> all() const { return {colourBlind_, underlined_}; }

private:
    QAction* addChoice(const QString& title);
    void choose();
    void tickChoices();

    Theme& theme_;
    StateStore& store_;
    QAction* colourBlind_;
    QAction* underlined_;
};

} // namespace lexiform::qt
