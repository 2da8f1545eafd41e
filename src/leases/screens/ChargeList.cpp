#include "leases/screens/ChargeList.h"

#include <numeric>

#include "platform/qt/Text.h"

namespace leases::screens {

using platform::qt::ToScreen;

namespace {

enum Column { kDate, kCategory, kDescription, kAmount, kOpenTotal };

} // namespace

ChargeList::ChargeList(QWidget* parent) : LedgerList(parent) {
    setColumnCount(kOpenTotal + 1);
    for (const int column : {kAmount, kOpenTotal})
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTreeWidget::itemChanged, this, [this] {
        if (!Filling()) Q_EMIT TicksChanged();
    });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &ChargeList::SelectionMoved);
    connect(this, &QTreeWidget::currentItemChanged, this, &ChargeList::SelectionMoved);
}

void ChargeList::SetColumns(const QStringList& captions, const std::vector<int>& percents) {
    setHeaderLabels(captions);
    percents_ = percents;
    for (int column = 0; column < columnCount(); ++column)
        setColumnHidden(column, percents_[static_cast<std::size_t>(column)] == 0);
    ShareWidth();
}

void ChargeList::ShowLines(const std::vector<ChargeLine>& lines) {
    QList<QTreeWidgetItem*> rows;
    for (const ChargeLine& line : lines) {
        QTreeWidgetItem* const row =
            MakeRow(line.idRentLog, static_cast<int>(line.flags), line.date, line.ticked);
        row->setText(kCategory, ToScreen(line.category));
        row->setText(kDescription, ToScreen(line.description));
        row->setToolTip(kDescription, ToScreen(line.description));
        SetMoney(*row, kAmount, line.amount);
        if (line.openTotal) SetMoney(*row, kOpenTotal, *line.openTotal);
        rows << row;
    }
    ShowRows(rows);
}

std::vector<std::int32_t> ChargeList::TickedIds() const {
    std::vector<std::int32_t> ids;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem& row = *topLevelItem(i);
        if (row.checkState(kDate) == Qt::Checked) ids.push_back(IdOf(row));
    }
    return ids;
}

std::vector<std::int32_t> ChargeList::ShownIds() const {
    std::vector<std::int32_t> ids;
    for (int i = 0; i < topLevelItemCount(); ++i)
        ids.push_back(IdOf(*topLevelItem(i)));
    return ids;
}

bool ChargeList::MoveCurrent(int step) {
    const int from = indexOfTopLevelItem(currentItem());
    const int to = from + step;
    if (from < 0 || to < 0 || to >= topLevelItemCount()) return false;
    Fill([&] {
        QTreeWidgetItem* const row = takeTopLevelItem(from);
        insertTopLevelItem(to, row);
        setCurrentItem(row);
    });
    return true;
}

bool ChargeList::IsPicked(const QTreeWidgetItem& row, ChargePick pick) {
    if (pick == ChargePick::All) return true;
    const RentFlags flags{static_cast<std::int16_t>(FlagsOf(row))};
    return (flags == RentFlags::PeriodRent) == (pick == ChargePick::Rent);
}

void ChargeList::Select(ChargePick pick) {
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setSelected(IsPicked(*topLevelItem(i), pick));
}

void ChargeList::Tick(ChargePick pick) {
    Fill([&] {
        for (int i = 0; i < topLevelItemCount(); ++i) {
            QTreeWidgetItem& row = *topLevelItem(i);
            row.setCheckState(kDate, IsPicked(row, pick) ? Qt::Checked : Qt::Unchecked);
        }
    });
    Q_EMIT TicksChanged();
}

void ChargeList::resizeEvent(QResizeEvent* event) {
    LedgerList::resizeEvent(event);
    ShareWidth();
}

void ChargeList::ShareWidth() {
    const int all = std::accumulate(percents_.begin(), percents_.end(), 0);
    if (all == 0) return;
    for (std::size_t column = 0; column < percents_.size(); ++column)
        setColumnWidth(static_cast<int>(column), viewport()->width() * percents_[column] / all);
}

} // namespace leases::screens
