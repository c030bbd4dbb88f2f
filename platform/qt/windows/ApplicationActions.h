#pragma once

#include <QAction>
#include <QList>
#include <QObject>

namespace lexiform::qt {

/// The commands of the application that the menus of all windows share: each is one action everywhere.
struct ApplicationActions {
    QAction* openColours;
    QAction* openPalette;
    QAction* openHelp;
    QAction* updateState; ///< tells whether a check for updates was made; nobody can choose it
    QAction* openUpdates;
    QAction* openSupport;

    [[nodiscard]] QList<QAction*> inTools() const { return {openColours, openPalette}; }
    [[nodiscard]] QList<QAction*> inHelp() const { return {openHelp, updateState, openUpdates, openSupport}; }
};

/// Makes the actions; `owner` owns them.
[[nodiscard]] ApplicationActions makeApplicationActions(QObject* owner);

} // namespace lexiform::qt
