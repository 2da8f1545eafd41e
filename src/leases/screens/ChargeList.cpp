#include "leases/screens/ChargeList.h"

#include "leases/RentCodes.h"

namespace leases::screens {

ChargeList::ChargeList(QWidget* parent) : LedgerList(parent) {
    connect(this, &QTreeWidget::itemChanged, this, [this] {
        if (!Filling()) Q_EMIT TicksChanged();
    });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &ChargeList::SelectionMoved);
    connect(this, &QTreeWidget::currentItemChanged, this, &ChargeList::SelectionMoved);
}

std::vector<std::int32_t> ChargeList::TickedIds() const {
    std::vector<std::int32_t> ids;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem& row = *topLevelItem(i);
        if (row.checkState(0) == Qt::Checked) ids.push_back(IdOf(row));
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
    const RentFlags flags{FlagsOf(row)};
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
            row.setCheckState(0, IsPicked(row, pick) ? Qt::Checked : Qt::Unchecked);
        }
    });
    Q_EMIT TicksChanged();
}

} // namespace leases::screens
