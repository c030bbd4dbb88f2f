#include "platform/qt/theme/Palette.h"

namespace lexiform::qt {

namespace {

void setSurfaces(QPalette& palette, const Surfaces& surfaces) {
    palette.setColor(QPalette::Window, surfaces.window);
    palette.setColor(QPalette::Base, surfaces.pane);
    palette.setColor(QPalette::AlternateBase, surfaces.window);
    palette.setColor(QPalette::Button, surfaces.window);
    palette.setColor(QPalette::ToolTipBase, surfaces.controlFill);
    palette.setColor(QPalette::Highlight, surfaces.selection);
}

void setTexts(QPalette& palette, const Surfaces& surfaces) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
                            QPalette::HighlightedText, QPalette::ToolTipText})
        palette.setColor(role, surfaces.text);
    palette.setColor(QPalette::PlaceholderText, surfaces.secondaryText);
    palette.setColor(QPalette::Link, surfaces.focus);
    palette.setColor(QPalette::LinkVisited, surfaces.focus);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, surfaces.disabledText);
}

// Fusion shades its frames with these. It derives its outlines from the window's colour.
void setShades(QPalette& palette, const Surfaces& surfaces, Appearance appearance) {
    const bool dark = appearance == Appearance::dark;
    palette.setColor(QPalette::Light, dark ? surfaces.pressed : surfaces.controlFill);
    palette.setColor(QPalette::Midlight, surfaces.hover);
    palette.setColor(QPalette::Mid, surfaces.handle);
    palette.setColor(QPalette::Dark, surfaces.controlBorder);
    palette.setColor(QPalette::Shadow, dark ? surfaces.pane : surfaces.secondaryText);
}

} // namespace

QPalette paletteOf(Appearance appearance) {
    const Surfaces& surfaces = surfacesOf(appearance);
    QPalette palette;
    setSurfaces(palette, surfaces);
    setShades(palette, surfaces, appearance);
    setTexts(palette, surfaces);
    return palette;
}

// In the dark a framed control at rest has the tone that a flat one takes under the pointer.
QColor pointedFill(const Surfaces& surfaces) {
    return surfaces.controlFill == surfaces.hover ? surfaces.pressed : surfaces.hover;
}

} // namespace lexiform::qt
