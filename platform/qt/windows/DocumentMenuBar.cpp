#include "platform/qt/windows/DocumentMenuBar.h"

#include "platform/qt/windows/AppearanceMenu.h"
#include "platform/qt/windows/ClassMarkActions.h"
#include "platform/qt/windows/FullScreenAction.h"
#include "platform/qt/windows/WindowMenu.h"
#include "platform/qt/windows/showAbout.h"

#include <QCoreApplication>

namespace lexiform::qt {

namespace {

constexpr int barHeight = 30;

} // namespace

DocumentMenuBar::DocumentMenuBar(const TextActions& actions, const PaneCommands& panes,
                                 const WindowServices& services, QWidget* window)
    : QMenuBar(window), fileMenu_(new FileMenu(window)), editMenu_(new EditMenu(panes.places(), window)) {
    setMinimumHeight(barHeight);
    addMenu(fileMenu_);
    addMenu(editMenu_);
    addTextMenu(actions);
    addViewMenu(panes, services);
    addToolsMenu(services);
    addMenu(new WindowMenu(services.windows, window));
    addHelpMenu(services);
}

void DocumentMenuBar::addTextMenu(const TextActions& actions) {
    addMenu(tr("&Text"))
        ->addActions({actions.parse, actions.multiParse, actions.listWords, actions.saveList});
}

void DocumentMenuBar::addViewMenu(const PaneCommands& panes, const WindowServices& services) {
    QMenu* menu = addMenu(tr("&View"));
    menu->addActions(panes.views());
    menu->addSeparator();
    menu->addMenu(new AppearanceMenu(services.theme, services.store, this));
    menu->addActions((new ClassMarkActions(services.theme, services.store, this))->all());
    menu->addSeparator();
    menu->addAction(new FullScreenAction(*window()));
}

void DocumentMenuBar::addToolsMenu(const WindowServices& services) {
    if (services.application != nullptr) addMenu(tr("T&ools"))->addActions(services.application->inTools());
}

void DocumentMenuBar::addHelpMenu(const WindowServices& services) {
    QMenu* menu = addMenu(tr("&Help"));
    if (services.application != nullptr) {
        menu->addActions(services.application->inHelp());
        menu->addSeparator();
    }
    menu->addAction(tr("&About Lexiform"), this, [this] { showAbout(*window()); });
}

} // namespace lexiform::qt
