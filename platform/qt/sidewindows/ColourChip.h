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

    void setClassPalette(ClassPalette palette);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Colour colour_;
    ClassPalette classPalette_ = ClassPalette::standard;
    Appearance appearance_;
};

} // namespace lexiform::qt
