#pragma once

#include "ports/Application.h"

#include <QAction>
#include <QPointer>

#include <string>

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

} // namespace lexiform::qt
