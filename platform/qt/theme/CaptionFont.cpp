#include "platform/qt/theme/CaptionFont.h"

#include <QApplication>
#include <QEvent>

namespace lexiform::qt {

CaptionFont::CaptionFont(QWidget& widget, QFont::Weight weight)
    : QObject(&widget), widget_(widget), weight_(weight) {
    apply();
    widget.installEventFilter(this);
}

bool CaptionFont::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) apply();
    return false;
}

void CaptionFont::apply() {
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() - 1);
    font.setWeight(weight_);
    widget_.setFont(font);
}

} // namespace lexiform::qt
