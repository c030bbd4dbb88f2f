#pragma once

#include "ports/ProgressIndicator.h"

#include <QPointer>
#include <QWidget>

namespace lexiform::qt {

/// A widget that shows that the program is busy. It does nothing once the widget is gone.
class QtProgressIndicator : public ProgressIndicator {
public:
    explicit QtProgressIndicator(QWidget* widget) : widget_(widget) {}

    void setHidden(bool hidden) override {
        if (widget_) widget_->setHidden(hidden);
    }

private:
    QPointer<QWidget> widget_;
};

} // namespace lexiform::qt
