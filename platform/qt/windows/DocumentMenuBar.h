#pragma once

#include "platform/qt/windows/EditMenu.h"
#include "platform/qt/windows/FileMenu.h"
#include "platform/qt/windows/PaneCommands.h"
#include "platform/qt/windows/TextActions.h"
#include "platform/qt/windows/WindowServices.h"

#include <QMenuBar>

namespace lexiform::qt {

/// The menus of a document window.
class DocumentMenuBar : public QMenuBar {
    Q_OBJECT

public:
    DocumentMenuBar(const TextActions& actions, const PaneCommands& panes, const WindowServices& services,
                    QWidget* window);

    [[nodiscard]] EditMenu* editMenu() const { return editMenu_; }
    [[nodiscard]] FileMenu* fileMenu() const { return fileMenu_; }

private:
    void addTextMenu(const TextActions& actions);
    void addViewMenu(const PaneCommands& panes, const WindowServices& services);
    void addToolsMenu(const WindowServices& services);
    void addHelpMenu(const WindowServices& services);

    FileMenu* fileMenu_;
    EditMenu* editMenu_;
};

} // namespace lexiform::qt
