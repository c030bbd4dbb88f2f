#pragma once

#include <QObject>
#include <QWidget>

#include <functional>

namespace lexiform::qt {

/// Tells when a window comes on screen: first shown, or shown again after being hidden or closed.
/// Being restored from minimised, resized, made full screen or given another theme is no appearance.
class ScreenAppearance : public QObject {
public:
    /// Watches `window`, which owns this object.
    ScreenAppearance(QWidget& window, std::function<void()> appeared);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> appeared_;
    bool onScreen_ = false;
};

} // namespace lexiform::qt
