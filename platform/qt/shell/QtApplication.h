#pragma once

#include "platform/qt/shell/QtMenuItem.h"

#include <memory>
#include <vector>

namespace lexiform::qt {

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
