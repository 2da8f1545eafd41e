#include "core/grid/LedgerList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "core/grid/RowDelegate.h"
#include "platform/qt/Text.h"

namespace core::grid {

using platform::qt::ToScreen;

namespace {

constexpr int kIdRole = Qt::UserRole;
constexpr int kFlagsRole = Qt::UserRole + 1;
constexpr int kPlaceRole = Qt::UserRole + 2;
constexpr int kSortRole = Qt::UserRole + 3;

/// The columns of the table before the first one that is shown.
constexpr std::size_t kIdColumn = 0;
constexpr std::size_t kFlagsColumn = 1;
constexpr std::size_t kHidden = 2;

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

/// Returns the number by which a date or money is sorted; nothing for a value that is sorted by its
/// text.
QVariant SortNumber(const platform::Value& value, platform::FieldType type) {
    switch (type) {
        case platform::FieldType::Date:
            return qlonglong{value.IsNull() ? 0 : value.AsDate().Serial()};
        case platform::FieldType::Currency:
            return qlonglong{value.IsNull() ? 0 : value.AsCurrency().Scaled()};
        case platform::FieldType::Integer:
        case platform::FieldType::Long:
            return qlonglong{value.IsNull() ? 0 : value.AsLong()};
        default:
            return {};
    }
}

void ShowCell(QTreeWidgetItem& row, int place, const platform::Value& value,
              const core::TableColumn& column) {
    if (!value.IsNull()) row.setText(place, ToScreen(core::CellText(value, column.format)));
    if (column.type == platform::FieldType::Text) row.setToolTip(place, row.text(place));
    if (column.format.right) row.setTextAlignment(place, Qt::AlignRight | Qt::AlignVCenter);
    row.setData(place, kSortRole, SortNumber(value, column.type));
}

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

void LedgerList::ShowTable(const core::Table& table, const std::vector<bool>& ticks) {
    const std::vector<core::TableColumn>& columns = table.Columns();
    ShowCaptions(columns);
    QList<QTreeWidgetItem*> rows;
    for (std::int64_t i = 0; i < table.RowCount(); ++i) {
        auto* const row = new Row;
        row->setData(0, kIdRole, table.ValueAt(i, kIdColumn).AsLong());
        row->setData(0, kFlagsRole, table.ValueAt(i, kFlagsColumn).AsInteger());
        row->setData(0, kPlaceRole, qlonglong{i});
        for (std::size_t column = kHidden; column < columns.size(); ++column) {
            ShowCell(*row, static_cast<int>(column - kHidden), table.ValueAt(i, column),
                     columns[column]);
        }
        if (ticks_) {
            const bool isTicked = ticks.at(static_cast<std::size_t>(i));
            row->setCheckState(0, isTicked ? Qt::Checked : Qt::Unchecked);
        }
        rows << row;
    }
    ShowRows(rows);
}

void LedgerList::ShowCaptions(const std::vector<core::TableColumn>& columns) {
    const int shown = static_cast<int>(columns.size() - kHidden);
    setColumnCount(shown);
    if (sortedBy_ >= shown) sortedBy_ = -1;
    for (int place = 0; place < shown; ++place) {
        const core::TableColumn& column = columns[static_cast<std::size_t>(place) + kHidden];
        const bool isDescription = column.caption == "Description";
        headerItem()->setText(place, ToScreen(column.caption));
        headerItem()->setTextAlignment(
            place, (column.format.right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        header()->setSectionResizeMode(
            place, isDescription ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
}

void LedgerList::ShowTicks(const std::vector<bool>& ticks) {
    Fill([&] {
        for (int i = 0; i < topLevelItemCount(); ++i) {
            QTreeWidgetItem& row = *topLevelItem(i);
            row.setCheckState(0, ticks.at(PlaceOf(row)) ? Qt::Checked : Qt::Unchecked);
        }
    });
}

std::int32_t LedgerList::IdOf(const QTreeWidgetItem& row) {
    return row.data(0, kIdRole).toInt();
}

std::int16_t LedgerList::FlagsOf(const QTreeWidgetItem& row) {
    return static_cast<std::int16_t>(row.data(0, kFlagsRole).toInt());
}

std::size_t LedgerList::PlaceOf(const QTreeWidgetItem& row) {
    return static_cast<std::size_t>(row.data(0, kPlaceRole).toULongLong());
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
