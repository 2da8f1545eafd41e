#include "mortgages/screens/LogList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace mortgages::screens {

using platform::qt::ToScreen;

namespace {

constexpr int kIdRole = Qt::UserRole;
constexpr int kFlagsRole = Qt::UserRole + 1;
constexpr int kLineRole = Qt::UserRole + 2;
constexpr int kSortRole = Qt::UserRole + 3;

/// Sorts days as days and money as money.
class Item : public QTreeWidgetItem {
  public:
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = std::max(0, treeWidget()->sortColumn());
        const QVariant mine = data(column, kSortRole);
        if (!mine.isValid()) return text(column).localeAwareCompare(other.text(column)) < 0;
        return mine.toLongLong() < other.data(column, kSortRole).toLongLong();
    }
};

QTreeWidgetItem* MakeItem(const LogLine& line, std::size_t number, bool ticks) {
    auto* const item = new Item;
    item->setData(0, kIdRole, line.idMortgageLog);
    item->setData(0, kFlagsRole, static_cast<int>(line.flags));
    item->setData(0, kLineRole, static_cast<qulonglong>(number));
    item->setText(0, ToScreen(line.date.ToText()));
    item->setData(0, kSortRole, line.date.IsSet() ? line.date.Serial() : 0);
    int column = 1;
    for (const QString& text : line.texts) {
        item->setText(column, text);
        item->setToolTip(column++, text);
    }
    for (const platform::Currency amount : line.amounts) {
        item->setText(column, ToScreen(platform::FormatMoney(amount)));
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(column++, kSortRole, qlonglong{amount.Scaled()});
    }
    if (ticks) item->setCheckState(0, line.ticked ? Qt::Checked : Qt::Unchecked);
    return item;
}

std::size_t LineOf(const QTreeWidgetItem& item) {
    return static_cast<std::size_t>(item.data(0, kLineRole).toULongLong());
}

} // namespace

LogList::LogList(QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    header()->setSortIndicatorClearable(true);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
        if (!filling_ && column == 0)
            Q_EMIT Ticked(LineOf(*item), item->checkState(0) == Qt::Checked);
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { Q_EMIT RowChosen(item->data(0, kIdRole).toInt()); });
}

void LogList::SetColumns(const QStringList& captions, int texts, int wide) {
    wide_ = wide;
    setHeaderLabels(captions);
    for (int column = texts + 1; column < columnCount(); ++column)
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(wide, QHeaderView::Stretch);
    // In the order of the lines until a caption is clicked.
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void LogList::ShowLines(const std::vector<LogLine>& lines) {
    const std::int32_t current = CurrentId();
    filling_ = true;
    clear();
    QList<QTreeWidgetItem*> items;
    for (std::size_t i = 0; i < lines.size(); ++i)
        items << MakeItem(lines[i], i, ticks_);
    // A list that sorts takes items in from the last to the first.
    setSortingEnabled(false);
    addTopLevelItems(items);
    setSortingEnabled(true);
    for (QTreeWidgetItem* const item : items) {
        item->setSizeHint(wide_, QSize(0, fontMetrics().height() + 6));
        if (item->data(0, kIdRole).toInt() == current) setCurrentItem(item);
    }
    filling_ = false;
}

void LogList::ShowTicks(const std::vector<bool>& ticks) {
    filling_ = true;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* const item = topLevelItem(row);
        item->setCheckState(0, ticks.at(LineOf(*item)) ? Qt::Checked : Qt::Unchecked);
    }
    filling_ = false;
}

std::vector<std::int32_t> LogList::SelectedIds() const {
    std::vector<std::int32_t> ids;
    for (const QTreeWidgetItem* const item : selectedItems())
        ids.push_back(item->data(0, kIdRole).toInt());
    if (ids.empty() && CurrentId() != 0) ids.push_back(CurrentId());
    return ids;
}

std::int32_t LogList::CurrentId() const {
    return currentItem() ? currentItem()->data(0, kIdRole).toInt() : 0;
}

void LogList::SelectBasePayments(bool basePayments) {
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* const item = topLevelItem(row);
        const bool isBase =
            item->data(0, kFlagsRole).toInt() == static_cast<int>(LogFlags::BasePayment);
        item->setSelected(isBase == basePayments);
    }
}

void LogList::keyPressEvent(QKeyEvent* event) {
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

} // namespace mortgages::screens
