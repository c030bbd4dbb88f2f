#pragma once

#include "platform/qt/windows/EditMenu.h"
#include "platform/qt/windows/PaneCommands.h"
#include "platform/qt/windows/TextActions.h"
#include "platform/qt/windows/WindowServices.h"

#include <QMenuBar>

namespace lexiform::qt {

/// The menus of a document window. What concerns the window alone they do themselves; what concerns
/// documents they ask for.
class DocumentMenuBar : public QMenuBar {
    Q_OBJECT

public:
    DocumentMenuBar(const TextActions& actions, const PaneCommands& panes, const WindowServices& services,
                    QWidget* window);

    [[nodiscard]] EditMenu* editMenu() const { return editMenu_; }

signals:
    void newRequested();
    void openRequested();

private:
    void addFileMenu();
    void addTextMenu(const TextActions& actions);
    void addViewMenu(const PaneCommands& panes, const WindowServices& services);
    void addToolsMenu(const WindowServices& services);
    void addHelpMenu(const WindowServices& services);

    EditMenu* editMenu_;
};

} // namespace lexiform::qt
