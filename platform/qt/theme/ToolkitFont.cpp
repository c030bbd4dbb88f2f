#include "platform/qt/theme/ToolkitFont.h"

#include <QApplication>

namespace lexiform::qt {

std::optional<QFont> fontNamed(const QString& name, const QFont& like) {
    const qsizetype space = name.lastIndexOf(u' ');
    bool isNumber = false;
    const double points = name.mid(space + 1).toDouble(&isNumber);
    constexpr double largest = 200;
    if (space <= 0 || !isNumber || !(points >= 1 && points <= largest)) return std::nullopt;
    QString family = name.left(space).trimmed();
    if (family.endsWith(u',')) family.chop(1);
    QFont font = like;
    font.setFamily(family);
    font.setPointSizeF(points);
    return font;
}

ToolkitFont::ToolkitFont() {
    if (toolkit_.hasSettings())
        connection_ = toolkit_.tellOfChanges("notify::gtk-font-name", &ToolkitFont::takeChange, this);
}

ToolkitFont::~ToolkitFont() {
    if (connection_ != 0) toolkit_.stopTelling(connection_);
}

void ToolkitFont::takeChange(void* /*settings*/, void* /*property*/, void* self) {
    static_cast<const ToolkitFont*>(self)->follow();
}

void ToolkitFont::follow() const {
    const auto font = fontNamed(toolkit_.text("gtk-font-name"), QApplication::font());
    if (font && *font != QApplication::font()) QApplication::setFont(*font);
}

} // namespace lexiform::qt
