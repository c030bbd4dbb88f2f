#pragma once

#include <QScrollBar>

namespace lexiform::qt {

/// The vertical scroll bar of a pane. It lies in the right margin of the text and is always there, so that
/// lines break at the same words whether or not the text is longer than the pane; while there is
/// nothing to scroll it paints nothing.
class PaneScrollBar : public QScrollBar {
    Q_OBJECT

public:
    static constexpr int barWidth = 10;

    explicit PaneScrollBar(int width = barWidth, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lexiform::qt
