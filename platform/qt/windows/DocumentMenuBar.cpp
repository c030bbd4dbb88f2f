#include "platform/qt/windows/DocumentMenuBar.h"

#include "platform/qt/windows/AppearanceMenu.h"
#include "platform/qt/windows/EditMenu.h"
#include "platform/qt/windows/FullScreenAction.h"
#include "platform/qt/windows/WindowMenu.h"
#include "platform/qt/windows/showAbout.h"

#include <QCoreApplication>

namespace lexiform::qt {

namespace {

constexpr int barHeight = 30;

} // namespace

DocumentMenuBar::DocumentMenuBar(const TextActions& actions, const WindowServices& services, QWidget* window)
    : QMenuBar(window), fileMenu_(new FileMenu(window)) {
    setMinimumHeight(barHeight);
    addMenu(fileMenu_);
    addMenu(new EditMenu(window));
    addTextMenu(actions);
    addViewMenu(services);
    addMenu(new WindowMenu(services.windows, window));
    addHelpMenu();
}

void DocumentMenuBar::addTextMenu(const TextActions& actions) {
    addMenu(tr("&Text"))
        ->addActions({actions.parse, actions.multiParse, actions.listWords, actions.saveList});
}

void DocumentMenuBar::addViewMenu(const WindowServices& services) {
    QMenu* menu = addMenu(tr("&View"));
    menu->addMenu(new AppearanceMenu(services.theme, services.store, this));
    menu->addSeparator();
    menu->addAction(new FullScreenAction(*window()));
}

void DocumentMenuBar::addHelpMenu() {
    addMenu(tr("&Help"))->addAction(tr("&About Lexiform"), this, [this] { showAbout(*window()); });
}

} // namespace lexiform::qt
