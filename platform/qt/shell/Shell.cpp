#include "platform/qt/shell/Shell.h"

#include "platform/qt/shell/QtAlert.h"
#include "platform/qt/shell/QtApplication.h"
#include "platform/qt/shell/QtClock.h"
#include "platform/qt/shell/QtWorkspace.h"

namespace lexiform::qt {

Shell::Shell(const ShellParts& parts, const ApplicationActions& actions)
    : mainQueue_(std::make_shared<QtMainQueue>()), session_(std::make_shared<QtUrlSession>()),
      delegate_(std::make_shared<AppDelegate>(
          AppServices{.defaults = parts.defaults,
                      .clock = std::make_shared<QtClock>(),
                      .bundle = parts.bundle,
                      .session = session_,
                      .mainQueue = mainQueue_,
                      .makeAlert = [] { return std::make_shared<QtAlert>(); },
                      .application = std::make_shared<QtApplication>(actions.inHelp()),
                      .workspace = std::make_shared<QtWorkspace>(),
                      .storyboard = parts.storyboard,
                      .addresses = parts.addresses})) {
    connectCommands(actions);
}

// In this order: nothing asks the queue any more once the session stands still, and nothing but this object
// holds the delegate once both have let it go, so that its windows go on the main thread.
Shell::~Shell() {
    session_->stop();
    mainQueue_->stop();
}

void Shell::connectCommands(const ApplicationActions& actions) {
    connectCommand(actions.openColours, &AppDelegate::openColours);
    connectCommand(actions.openPalette, &AppDelegate::openPalette);
    connectCommand(actions.openHelp, &AppDelegate::openHelp);
    connectCommand(actions.openUpdates, &AppDelegate::openUpdates);
    connectCommand(actions.openSupport, &AppDelegate::openSupport);
}

void Shell::connectCommand(QAction* action, Command command) {
    connect(action, &QAction::triggered, this, [this, command] { ((*delegate_).*command)(nullptr); });
}

} // namespace lexiform::qt
