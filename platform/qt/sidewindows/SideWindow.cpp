#include "platform/qt/sidewindows/SideWindow.h"

#include "platform/qt/adapters/QtView.h"
#include "platform/qt/adapters/QtWindow.h"
#include "platform/qt/adapters/QtWindowController.h"
#include "platform/qt/windows/FontRelay.h"
#include "platform/qt/windows/ScreenAppearance.h"

#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace lexiform::qt {

SideWindow::SideWindow(const QString& title, QWidget* content, int margin, const WindowServices& services)
    : window_(std::make_shared<QtWindow>([this] { return windowTitle(); },
                                         [this](const QString& changed) { setTitle(changed); })),
      view_(std::make_shared<QtView>(window_)) {
    setTitle(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content);
    auto* close = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    services.windows.add(this);
    new FontRelay(*this);
}

// A window title marks the place of an asterisk with "[*]", which a file name may hold.
void SideWindow::setTitle(const QString& title) {
    setWindowTitle(QString(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

std::shared_ptr<SceneController>
SideWindow::makeController(std::unique_ptr<SideWindow> window,
                           const std::shared_ptr<ViewControllerBase>& content) {
    if (content) {
        content->view = window->view_;
        content->viewDidLoad();
        new ScreenAppearance(*window, [content = std::weak_ptr(content)] {
            if (const auto controller = content.lock()) controller->viewDidAppear();
        });
    }
    return std::make_shared<QtWindowController>(std::move(window), content);
}

} // namespace lexiform::qt
