#pragma once

#include <QFrame>
#include <QString>

namespace lexiform::qt {

/// The sheet on which one pane lies: a rounded box with a heading, and a ring round the whole while
/// the pane has the keyboard.
class PaneFrame : public QFrame {
    Q_OBJECT

public:
    /// Takes `pane` as its child and focus proxy and names both for assistive technology.
    PaneFrame(const QString& heading, QWidget* pane, QWidget* parent = nullptr);

    [[nodiscard]] const QString& heading() const { return heading_; }
    [[nodiscard]] QWidget* pane() const { return pane_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paintBox(QPainter& painter) const;
    void paintHeading(QPainter& painter) const;

    QString heading_;
    QWidget* pane_;
};

} // namespace lexiform::qt
