#pragma once

#include "platform/qt/windows/FindCommands.h"
#include "platform/qt/windows/PlaceCommands.h"
#include "platform/qt/windows/WrapAction.h"
#include "platform/qt/windows/ZoomCommands.h"

namespace lexiform::qt {

/// The commands on the panes of one window, ready for its menus.
class PaneCommands {
public:
    /// What it is given must outlive the commands; `window` owns the actions.
    PaneCommands(DocumentPanes& panes, FindBar& bar, StateStore& store, QWidget* window);

    /// What finds and goes to a place, for the Edit menu.
    [[nodiscard]] QList<QAction*> places() const;
    /// What changes how the panes show their texts, for the View menu.
    [[nodiscard]] QList<QAction*> views() const;

    [[nodiscard]] PaneFocus& focus() { return focus_; }
    [[nodiscard]] FindCommands& find() const { return *find_; }

private:
    PaneFocus& focus_;
    FindCommands* find_;
    PlaceCommands* place_;
    ZoomCommands* zoom_;
    WrapAction* wrapInput_;
    WrapAction* wrapOutput_;
    QAction* separator_;
};

} // namespace lexiform::qt
