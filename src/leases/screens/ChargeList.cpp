#include "leases/screens/ChargeList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "leases/RentPayment.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace leases::screens {

using platform::qt::ToScreen;

namespace {

enum Column { kDate, kCategory, kDescription, kAmount, kOpenTotal };

constexpr int kIdRole = Qt::UserRole;
constexpr int kFlagsRole = Qt::UserRole + 1;
constexpr int kSortRole = Qt::UserRole + 2;

/// Sorts days as days and money as money.
class Item : public QTreeWidgetItem {
  public:
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = std::max(0, treeWidget()->sortColumn());
        const QVariant mine = data(column, kSortRole);
        if (!mine.isValid()) return text(column).localeAwareCompare(other.text(column)) < 0;
        return mine.toLongLong() < other.data(column, kSortRole).toLongLong();
    }

    void SetMoney(int column, platform::Currency amount) {
        setText(column, ToScreen(platform::FormatMoney(amount)));
        setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        setData(column, kSortRole, qlonglong{amount.Scaled()});
    }
};

/// Rows with some air, and check boxes that can be seen on a dark list too: they are filled with
/// the colour of what lies behind them.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int kAir = 6;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QColor base = option->palette.color(QPalette::Base);
        if (base.lightness() < 128) option->palette.setColor(QPalette::Base, base.lighter(280));
    }
};

bool IsPicked(const QTreeWidgetItem& item, ChargePick pick) {
    if (pick == ChargePick::All) return true;
    const RentFlags flags{static_cast<std::int16_t>(item.data(kDate, kFlagsRole).toInt())};
    return IsPeriodRent(flags) == (pick == ChargePick::Rent);
}

QTreeWidgetItem* MakeItem(const ChargeLine& line, bool ticks) {
    auto* const item = new Item;
    item->setData(kDate, kIdRole, line.idRentLog);
    item->setData(kDate, kFlagsRole, static_cast<int>(line.flags));
    item->setText(kDate, ToScreen(line.date.ToText()));
    item->setData(kDate, kSortRole, line.date.IsSet() ? line.date.Serial() : 0);
    item->setText(kCategory, ToScreen(line.category));
    item->setText(kDescription, ToScreen(line.description));
    item->setToolTip(kDescription, ToScreen(line.description));
    item->SetMoney(kAmount, line.amount);
    if (line.openTotal) item->SetMoney(kOpenTotal, *line.openTotal);
    if (ticks) item->setCheckState(kDate, line.ticked ? Qt::Checked : Qt::Unchecked);
    return item;
}

} // namespace

ChargeList::ChargeList(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    setColumnCount(kOpenTotal + 1);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    // Until a caption is clicked the rows stand as they were given.
    connect(header(), &QHeaderView::sectionClicked, this, &ChargeList::SortBy);
    for (const int column : {kAmount, kOpenTotal})
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTreeWidget::itemChanged, this, [this] {
        if (!filling_) Q_EMIT TicksChanged();
    });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &ChargeList::SelectionMoved);
    connect(this, &QTreeWidget::currentItemChanged, this, &ChargeList::SelectionMoved);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        Q_EMIT RowChosen(item->data(kDate, kIdRole).toInt());
    });
}

void ChargeList::SetColumns(const QStringList& captions, const std::vector<int>& percents) {
    setHeaderLabels(captions);
    percents_ = percents;
    for (int column = 0; column < columnCount(); ++column)
        setColumnHidden(column, percents_[static_cast<std::size_t>(column)] == 0);
    ShareWidth();
}

void ChargeList::ShowLines(const std::vector<ChargeLine>& lines) {
    const std::int32_t current = CurrentId();
    filling_ = true;
    clear();
    QList<QTreeWidgetItem*> items;
    for (const ChargeLine& line : lines)
        items << MakeItem(line, ticks_);
    addTopLevelItems(items);
    for (QTreeWidgetItem* const item : items) {
        if (item->data(kDate, kIdRole).toInt() == current) setCurrentItem(item);
    }
    if (sortedBy_ >= 0) sortItems(sortedBy_, order_);
    filling_ = false;
}

void ChargeList::SortBy(int column) {
    const bool again = column == sortedBy_ && order_ == Qt::AscendingOrder;
    order_ = again ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortedBy_ = column;
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, order_);
    sortItems(column, order_);
}

std::vector<std::int32_t> ChargeList::SelectedIds() const {
    std::vector<std::int32_t> ids;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = topLevelItem(row);
        if (item->isSelected()) ids.push_back(item->data(kDate, kIdRole).toInt());
    }
    if (ids.empty() && currentItem()) ids.push_back(CurrentId());
    return ids;
}

std::int32_t ChargeList::CurrentId() const {
    if (currentItem()) return currentItem()->data(kDate, kIdRole).toInt();
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? 0 : selected.front()->data(kDate, kIdRole).toInt();
}

std::vector<std::int32_t> ChargeList::TickedIds() const {
    std::vector<std::int32_t> ids;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = topLevelItem(row);
        if (item->checkState(kDate) == Qt::Checked)
            ids.push_back(item->data(kDate, kIdRole).toInt());
    }
    return ids;
}

void ChargeList::Select(ChargePick pick) {
    for (int row = 0; row < topLevelItemCount(); ++row)
        topLevelItem(row)->setSelected(IsPicked(*topLevelItem(row), pick));
}

void ChargeList::Tick(ChargePick pick) {
    filling_ = true;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* const item = topLevelItem(row);
        item->setCheckState(kDate, IsPicked(*item, pick) ? Qt::Checked : Qt::Unchecked);
    }
    filling_ = false;
    Q_EMIT TicksChanged();
}

void ChargeList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (CurrentId() != 0) Q_EMIT RowChosen(CurrentId());
        return;
    }
    if (event->key() == Qt::Key_Delete) {
        Q_EMIT DeleteAsked();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void ChargeList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    ShareWidth();
}

void ChargeList::ShareWidth() {
    int all = 0;
    for (const int percent : percents_)
        all += percent;
    if (all == 0) return;
    for (std::size_t column = 0; column < percents_.size(); ++column)
        setColumnWidth(static_cast<int>(column), viewport()->width() * percents_[column] / all);
}

} // namespace leases::screens
