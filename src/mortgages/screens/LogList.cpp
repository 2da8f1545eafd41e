#include "mortgages/screens/LogList.h"

#include "mortgages/MortgageCodes.h"

namespace mortgages::screens {

LogList::LogList(QWidget* parent) : LedgerList(parent) {
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* row, int column) {
        if (!Filling() && column == 0)
            Q_EMIT Ticked(PlaceOf(*row), row->checkState(0) == Qt::Checked);
    });
}

void LogList::SelectBasePayments(bool basePayments) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem& row = *topLevelItem(i);
        const bool isBase = LogFlags{FlagsOf(row)} == LogFlags::BasePayment;
        row.setSelected(isBase == basePayments);
    }
}

} // namespace mortgages::screens
