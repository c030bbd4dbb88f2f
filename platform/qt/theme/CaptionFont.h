#pragma once

#include <QFont>
#include <QWidget>

namespace lexiform::qt {

/// Gives a widget the font of captions, the desktop's a point smaller, and again when that changes.
class CaptionFont : public QObject {
    Q_OBJECT

public:
    /// `widget` owns this object.
    explicit CaptionFont(QWidget& widget, QFont::Weight weight = QFont::Normal);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    QWidget& widget_;
    QFont::Weight weight_;
};

} // namespace lexiform::qt
