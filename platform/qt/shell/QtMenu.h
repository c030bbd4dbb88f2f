#pragma once

#include "ports/Application.h"

#include <QAction>
#include <QPointer>

#include <memory>
#include <vector>

namespace lexiform::qt {

/// An action as the core's menu item. It does nothing once the action is gone.
class QtMenuItem : public MenuItem {
public:
    explicit QtMenuItem(QAction* action) : action_(action) {}

    void setState(State state) override;
    void setTitle(const std::string& title) override;
    [[nodiscard]] QString title() const;

private:
    QPointer<QAction> action_;
};

/// The Help menu as the core knows it: the commands that the Help menus of all windows share.
class QtApplication : public Application, public Menu {
public:
    explicit QtApplication(const QList<QAction*>& helpActions);

    [[nodiscard]] Menu* helpMenu() override { return this; }
    [[nodiscard]] MenuItem* itemWithTitle(std::string_view title) override;

private:
    std::vector<std::unique_ptr<QtMenuItem>> items_;
};

} // namespace lexiform::qt
