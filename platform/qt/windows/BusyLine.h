#pragma once

#include <QBasicTimer>
#include <QProgressBar>

namespace lexiform::qt {

/// A thin line with a piece that wanders along it while the program is busy. It keeps its place when
/// hidden.
class BusyLine : public QProgressBar {
    Q_OBJECT

public:
    explicit BusyLine(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QBasicTimer timer_;
    double phase_ = 0;
};

} // namespace lexiform::qt
