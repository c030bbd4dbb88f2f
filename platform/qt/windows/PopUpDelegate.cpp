#include "platform/qt/windows/PopUpDelegate.h"

#include "platform/qt/theme/Appearance.h"

#include <QPainter>
#include <QPainterPath>

namespace lexiform::qt {

namespace {

constexpr int rowHeight = 35;
constexpr int radius = 4;
constexpr int textInset = 34;
constexpr int tickInset = 11;

void paintTick(QPainter& painter, const QRect& row, const QColor& colour) {
    const QPointF start(row.left() + tickInset, row.center().y() + 1);
    QPainterPath tick(start);
    tick.lineTo(start + QPointF(4, 4));
    tick.lineTo(start + QPointF(11, -4.5));
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tick);
}

} // namespace

PopUpDelegate::PopUpDelegate(QComboBox* box) : QStyledItemDelegate(box), box_(box) {}

void PopUpDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    const Surfaces& surfaces = surfacesOf(appearanceOf(box_->palette()));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(surfaces.selection);
        painter->drawRoundedRect(option.rect, radius, radius);
    }
    if (index.row() == box_->currentIndex()) paintTick(*painter, option.rect, surfaces.text);
    painter->setPen(surfaces.text);
    painter->setFont(box_->font());
    painter->drawText(option.rect.adjusted(textInset, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeading,
                      index.data(Qt::DisplayRole).toString());
    painter->restore();
}

QSize PopUpDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize base = QStyledItemDelegate::sizeHint(option, index);
    return {base.width() + textInset, std::max(rowHeight, base.height())};
}

} // namespace lexiform::qt
