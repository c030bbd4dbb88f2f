#pragma once

#include <QAction>
#include <QObject>

namespace lexiform::qt {

/// The commands on a window's text, shared by its tool bar and its menus. Each is disabled until it
/// is connected to what it does.
struct TextActions {
    QAction* parse;
    QAction* multiParse;
    QAction* listWords;
    QAction* saveList;
};

/// Makes the actions; `owner` owns them.
[[nodiscard]] TextActions makeTextActions(QObject* owner);

} // namespace lexiform::qt
