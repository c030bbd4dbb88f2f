#pragma once

#include "platform/qt/windows/WindowServices.h"
#include "ports/View.h"
#include "ports/ViewControllerBase.h"
#include "ports/WindowController.h"

#include <QWidget>

#include <memory>

namespace lexiform::qt {

/// A window beside the documents: one widget that fills it. Closed it hides, and it can be shown again.
class SideWindow : public QWidget {
    Q_OBJECT

public:
    /// Takes `content` as its child.
    SideWindow(const QString& title, QWidget* content, int margin, const WindowServices& services);

    /// The window with the controller of its content, which learns when it comes on screen.
    [[nodiscard]] static std::shared_ptr<SceneController>
    makeController(std::unique_ptr<SideWindow> window, const std::shared_ptr<ViewControllerBase>& content);

private:
    void setTitle(const QString& title);

    std::shared_ptr<Window> window_;
    std::shared_ptr<View> view_;
};

} // namespace lexiform::qt
