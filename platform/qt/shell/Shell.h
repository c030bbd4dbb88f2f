#pragma once

#include "app/AppDelegate.h"
#include "platform/qt/shell/QtMainQueue.h"
#include "platform/qt/shell/QtUrlSession.h"
#include "platform/qt/windows/ApplicationActions.h"

#include <QObject>

#include <memory>

namespace lexiform::qt {

/// What the shell is made of besides the desktop itself.
struct ShellParts {
    std::shared_ptr<UserDefaults> defaults;
    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<Storyboard> storyboard;
    MakerAddresses addresses;
};

/// The application's delegate on the desktop of Qt, with the commands that it answers. It must go before the
/// application does; what a check for updates has not reported by then is let go.
class Shell : public QObject {
public:
    Shell(const ShellParts& parts, const ApplicationActions& actions);
    ~Shell() override;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    [[nodiscard]] AppDelegate& delegate() { return *delegate_; }

private:
    using Command = void (AppDelegate::*)(const ActionSender*);

    void connectCommands(const ApplicationActions& actions);
    void connectCommand(QAction* action, Command command);

    std::shared_ptr<QtMainQueue> mainQueue_;
    std::shared_ptr<QtUrlSession> session_;
    std::shared_ptr<AppDelegate> delegate_;
};

} // namespace lexiform::qt
