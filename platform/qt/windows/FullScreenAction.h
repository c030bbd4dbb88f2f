#pragma once

#include <QAction>
#include <QWidget>

namespace lexiform::qt {

/// Makes a window full screen and back, and is titled by what it would do.
class FullScreenAction : public QAction {
    Q_OBJECT

public:
    /// `window` owns the action.
    explicit FullScreenAction(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retitle();

    QWidget& window_;
};

} // namespace lexiform::qt
