#pragma once

#include <QComboBox>

namespace lexiform::qt {

/// The pop-up of the tool bar: a framed title with a chevron, and a list that ticks the set item.
class PopUpBox : public QComboBox {
public:
    explicit PopUpBox(QWidget* parent = nullptr);

    /// The same for every title, unless the font is very large.
    [[nodiscard]] QSize sizeHint() const override;
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lexiform::qt
