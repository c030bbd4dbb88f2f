#pragma once

#include "ports/ScrollView.h"

#include <QPointer>
#include <QWidget>

namespace lexiform::qt {

/// The widget that scrolls a pane, as the core holds it.
class QtScrollView : public ScrollView {
public:
    explicit QtScrollView(QWidget* widget) : widget_(widget) {}

    /// Null once the widget is gone.
    [[nodiscard]] QWidget* widget() const { return widget_; }

private:
    QPointer<QWidget> widget_;
};

} // namespace lexiform::qt
