#include "platform/qt/windows/PopUpBox.h"

#include "platform/qt/theme/Appearance.h"
#include "platform/qt/theme/Palette.h"
#include "platform/qt/windows/PopUpDelegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace lexiform::qt {

namespace {

constexpr QSize boxSize{136, 36};
constexpr int listWidth = 176;
constexpr int radius = 6;
constexpr int textInset = 12;
constexpr int chevronInset = 20;

QColor fillOf(const QWidget& box, const Surfaces& surfaces) {
    if (!box.isEnabled()) return Qt::transparent;
    return box.underMouse() ? pointedFill(surfaces) : surfaces.controlFill;
}

// The ring of the focus lies inside the outline, so that the box keeps its size.
void paintFrame(QPainter& painter, const QWidget& box, const Surfaces& surfaces) {
    const double width = box.hasFocus() ? 2 : 1;
    const QColor border = box.isEnabled() ? surfaces.controlBorder : surfaces.disabledBorder;
    painter.setPen(QPen(box.hasFocus() ? surfaces.focus : border, width));
    painter.setBrush(fillOf(box, surfaces));
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(box.rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}

void paintChevron(QPainter& painter, const QRect& box, const QColor& colour) {
    const QPointF centre(box.right() + 1 - chevronInset, box.center().y() + 0.5);
    QPainterPath chevron(centre + QPointF(-3.25, -1.75));
    chevron.lineTo(centre + QPointF(0, 1.5));
    chevron.lineTo(centre + QPointF(3.25, -1.75));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(chevron);
}

} // namespace

PopUpBox::PopUpBox(QWidget* parent) : QComboBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setItemDelegate(new PopUpDelegate(this));
}

QSize PopUpBox::sizeHint() const {
    int widest = 0;
    for (int row = 0; row < count(); ++row)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(row)));
    const QSize room(widest + 2 * textInset + chevronInset, fontMetrics().height() + textInset);
    return room.expandedTo(boxSize);
}

void PopUpBox::showPopup() {
    view()->setMinimumWidth(listWidth);
    QComboBox::showPopup();
}

void PopUpBox::paintEvent(QPaintEvent* /*event*/) {
    const Surfaces& surfaces = surfacesOf(appearanceOf(palette()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(painter, *this, surfaces);
    paintChevron(painter, rect(), isEnabled() ? surfaces.secondaryText : surfaces.disabledText);
    const QRect room = rect().adjusted(textInset, 0, -chevronInset - textInset, 0);
    const QString title = fontMetrics().elidedText(currentText(), Qt::ElideRight, room.width());
    painter.setPen(isEnabled() ? surfaces.text : surfaces.disabledText);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeading, title);
}

} // namespace lexiform::qt
