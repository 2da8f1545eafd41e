#include "core/grid/RowDelegate.h"

namespace core::grid {

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    constexpr int kAir = 6;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QColor base = option->palette.color(QPalette::Base);
    if (base.lightness() < 128) option->palette.setColor(QPalette::Base, base.lighter(280));
}

} // namespace core::grid
