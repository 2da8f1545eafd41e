#pragma once

#include <QStyledItemDelegate>

namespace core::grid {

/// Draws the rows of a list with some space around them, and check boxes that are also visible in a
/// dark list: they are filled with a lighter colour than the list.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace core::grid
