#pragma once

#include "platform/qt/windows/TextActions.h"
#include "platform/qt/windows/WindowServices.h"

#include <QMenuBar>

namespace lexiform::qt {

/// The menus of a document window. What concerns the window alone they do themselves; what concerns
/// documents they ask for.
class DocumentMenuBar : public QMenuBar {
    Q_OBJECT

public:
    DocumentMenuBar(const TextActions& actions, const WindowServices& services, QWidget* window);

signals:
    void newRequested();
    void openRequested();

private:
    void addFileMenu();
    void addTextMenu(const TextActions& actions);
    void addViewMenu(const WindowServices& services);
    void addToolsMenu(const WindowServices& services);
    void addHelpMenu(const WindowServices& services);
};

} // namespace lexiform::qt
