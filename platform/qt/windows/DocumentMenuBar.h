#pragma once

#include "platform/qt/windows/FileMenu.h"
#include "platform/qt/windows/TextActions.h"
#include "platform/qt/windows/WindowServices.h"

#include <QMenuBar>

namespace lexiform::qt {

/// The menus of a document window.
class DocumentMenuBar : public QMenuBar {
    Q_OBJECT

public:
    DocumentMenuBar(const TextActions& actions, const WindowServices& services, QWidget* window);

    [[nodiscard]] FileMenu* fileMenu() const { return fileMenu_; }

private:
    void addTextMenu(const TextActions& actions);
    void addViewMenu(const WindowServices& services);
    void addHelpMenu();

    FileMenu* fileMenu_;
};

} // namespace lexiform::qt
