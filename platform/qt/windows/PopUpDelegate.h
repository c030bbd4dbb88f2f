#pragma once

#include <QComboBox>
#include <QStyledItemDelegate>

namespace lexiform::qt {

/// Paints the list of a pop-up: a tick before the set item, the selection's tint under the pointed one.
class PopUpDelegate : public QStyledItemDelegate {
public:
    /// For the list of `box`, which owns the delegate.
    explicit PopUpDelegate(QComboBox* box);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const QComboBox* box_;
};

} // namespace lexiform::qt
