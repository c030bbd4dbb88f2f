#pragma once

#include "base/Colour.h"
#include "platform/qt/theme/Appearance.h"

#include <QWidget>

namespace lexiform::qt {

/// Two letters in a colour on the pane of one appearance, whichever the window has.
class ColourChip : public QWidget {
    Q_OBJECT

public:
    ColourChip(Colour colour, Appearance appearance, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Colour colour_;
    Appearance appearance_;
};

} // namespace lexiform::qt
