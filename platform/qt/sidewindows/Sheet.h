#pragma once

#include <QFrame>

namespace lexiform::qt {

/// A rounded sheet in the colour of panes, without a heading, on which other widgets lie.
class Sheet : public QFrame {
    Q_OBJECT

public:
    explicit Sheet(QWidget* parent = nullptr) : QFrame(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lexiform::qt
