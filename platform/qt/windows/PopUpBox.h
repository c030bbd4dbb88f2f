#pragma once

#include <QComboBox>

namespace lexiform::qt {

/// The pop-up of the tool bar: a framed title with a chevron, and a list that ticks the set item.
class PopUpBox : public QComboBox {
public:
    explicit PopUpBox(QWidget* parent = nullptr);

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lexiform::qt
