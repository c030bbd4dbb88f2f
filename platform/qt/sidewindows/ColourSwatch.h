#pragma once

#include "platform/qt/theme/Appearance.h"

#include <QWidget>

namespace lexiform::qt {

/// A patch of a colour as the window's own appearance shows it.
class ColourSwatch : public QWidget {
    Q_OBJECT

public:
    ColourSwatch(Colour colour, QWidget* parent);

    void setClassPalette(ClassPalette palette);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Colour colour_;
    ClassPalette classPalette_ = ClassPalette::standard;
};

} // namespace lexiform::qt
