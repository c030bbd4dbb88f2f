#pragma once

#include <QWidget>

namespace lexiform::qt {

/// Passes the news of another desktop font on to everything in a window: Qt tells windows alone, and
/// panes and captions have fonts that are made of the desktop's.
class FontRelay : public QObject {
public:
    /// `window` owns this object.
    explicit FontRelay(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lexiform::qt
