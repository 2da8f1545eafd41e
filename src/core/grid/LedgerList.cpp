#include "core/grid/LedgerList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "core/grid/RowDelegate.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace core::grid {

using platform::qt::ToScreen;

namespace {

constexpr int kIdRole = Qt::UserRole;
constexpr int kFlagsRole = Qt::UserRole + 1;
constexpr int kSortRole = Qt::UserRole + 2;

/// Sorts dates as dates and money as money.
class Row : public QTreeWidgetItem {
  public:
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = std::max(0, treeWidget()->sortColumn());
        const QVariant mine = data(column, kSortRole);
        if (!mine.isValid()) return text(column).localeAwareCompare(other.text(column)) < 0;
        return mine.toLongLong() < other.data(column, kSortRole).toLongLong();
    }
};

} // namespace

LedgerList::LedgerList(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, &LedgerList::SortBy);
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* row) { Q_EMIT RowChosen(IdOf(*row)); });
}

QTreeWidgetItem* LedgerList::MakeRow(std::int32_t id, int flags, platform::Date date,
                                     bool ticked) const {
    auto* const row = new Row;
    row->setData(0, kIdRole, id);
    row->setData(0, kFlagsRole, flags);
    row->setText(0, ToScreen(date.ToText()));
    row->setData(0, kSortRole, date.IsSet() ? date.Serial() : 0);
    if (ticks_) row->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
    return row;
}

void LedgerList::SetMoney(QTreeWidgetItem& row, int column, platform::Currency amount) {
    row.setText(column, ToScreen(platform::FormatMoney(amount)));
    row.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    row.setData(column, kSortRole, qlonglong{amount.Scaled()});
}

std::int32_t LedgerList::IdOf(const QTreeWidgetItem& row) {
    return row.data(0, kIdRole).toInt();
}

int LedgerList::FlagsOf(const QTreeWidgetItem& row) {
    return row.data(0, kFlagsRole).toInt();
}

void LedgerList::ShowRows(const QList<QTreeWidgetItem*>& rows) {
    const std::int32_t current = CurrentId();
    Fill([&] {
        clear();
        addTopLevelItems(rows);
        for (QTreeWidgetItem* const row : rows) {
            if (IdOf(*row) == current) setCurrentItem(row);
        }
        if (sortedBy_ >= 0) sortItems(sortedBy_, order_);
    });
}

std::vector<std::int32_t> LedgerList::SelectedIds() const {
    std::vector<std::int32_t> ids;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->isSelected()) ids.push_back(IdOf(*topLevelItem(i)));
    }
    return ids;
}

std::int32_t LedgerList::CurrentId() const {
    if (currentItem()) return IdOf(*currentItem());
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? 0 : IdOf(*selected.front());
}

void LedgerList::SortBy(int column) {
    const bool again = column == sortedBy_ && order_ == Qt::AscendingOrder;
    order_ = again ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortedBy_ = column;
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, order_);
    sortItems(column, order_);
}

/// A list without a current row makes its first one current, and would leave it unselected.
void LedgerList::focusInEvent(QFocusEvent* event) {
    QTreeWidget::focusInEvent(event);
    if (currentItem() && selectedItems().isEmpty()) setCurrentItem(currentItem());
}

void LedgerList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && ticks_) return event->ignore(); // it submits the form
    if (isEnter || event->key() == Qt::Key_F2) {
        if (CurrentId() != 0) Q_EMIT RowChosen(CurrentId());
        return;
    }
    if (event->key() == Qt::Key_Space && ticks_) {
        if (QTreeWidgetItem* const row = currentItem()) {
            const bool ticked = row->checkState(0) == Qt::Checked;
            row->setCheckState(0, ticked ? Qt::Unchecked : Qt::Checked);
        }
        return;
    }
    if (event->key() == Qt::Key_Delete) {
        Q_EMIT DeleteAsked();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

} // namespace core::grid
