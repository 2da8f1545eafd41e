#include "exchange/screens/AccountList.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <algorithm>

#include "core/Rows.h"
#include "exchange/FinExport.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/qt/Text.h"

namespace exchange::screens {

namespace {

constexpr int kName = 0;
constexpr int kCount = 1;

/// Sorts names ignoring case, and counts as numbers.
class AccountRow : public QTreeWidgetItem {
  public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget() ? treeWidget()->sortColumn() : kName;
        if (column == kCount) {
            return data(kCount, Qt::UserRole).toInt() < other.data(kCount, Qt::UserRole).toInt();
        }
        return text(kName).compare(other.text(kName), Qt::CaseInsensitive) < 0;
    }
};

} // namespace

std::int32_t AccountOf(const QTreeWidgetItem& row) {
    return row.data(kName, Qt::UserRole).toInt();
}

std::vector<std::int32_t> CheckedAccounts(const QTreeWidget& list) {
    std::vector<std::int32_t> checked;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& row = *list.topLevelItem(i);
        if (row.checkState(kName) == Qt::Checked) checked.push_back(AccountOf(row));
    }
    return checked;
}

void CheckAll(QTreeWidget& list, Qt::CheckState state) {
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        list.topLevelItem(i)->setCheckState(kName, state);
}

void FillAccounts(QTreeWidget& list) {
    const std::vector<std::int32_t> checked = CheckedAccounts(list);
    list.setSortingEnabled(false);
    list.clear();
    platform::Recordset rows;
    for (rows = core::Read("SELECT IdAccount, ShowAs FROM Account"); !rows.Eof(); rows.MoveNext()) {
        const std::int32_t id = platform::IdOf(rows["IdAccount"]);
        auto* const row = new AccountRow;
        row->setText(kName, platform::qt::ToScreen(platform::TextOf(rows["ShowAs"])));
        row->setData(kName, Qt::UserRole, id);
        row->setCheckState(kName,
                           std::ranges::count(checked, id) > 0 ? Qt::Checked : Qt::Unchecked);
        row->setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
        list.addTopLevelItem(row);
    }
    list.setSortingEnabled(true);
}

void FillCounts(QTreeWidget& list, const ExportRange& range, ShowCount show) {
    list.setColumnHidden(kCount, show == ShowCount::No);
    if (show == ShowCount::No) return;
    list.setSortingEnabled(false);
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        QTreeWidgetItem& row = *list.topLevelItem(i);
        const std::int32_t count = CountForExport(AccountOf(row), range);
        row.setText(kCount, QString::number(count));
        row.setData(kCount, Qt::UserRole, count);
    }
    list.setSortingEnabled(true);
}

} // namespace exchange::screens
