#include "mortgages/screens/LogList.h"

#include <QHeaderView>

namespace mortgages::screens {

LogList::LogList(QWidget* parent) : LedgerList(parent) {
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* row, int column) {
        if (!Filling() && column == 0)
            Q_EMIT Ticked(LineOf(*row), row->checkState(0) == Qt::Checked);
    });
}

void LogList::SetColumns(const QStringList& captions, int texts, int wide) {
    setHeaderLabels(captions);
    for (int column = texts + 1; column < columnCount(); ++column)
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(wide, QHeaderView::Stretch);
}

void LogList::ShowLines(const std::vector<LogLine>& lines) {
    QList<QTreeWidgetItem*> rows;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const LogLine& line = lines[i];
        QTreeWidgetItem* const row =
            MakeRow(line.idMortgageLog, static_cast<int>(line.flags), line.date, line.ticked);
        row->setData(0, kOwnRole, static_cast<qulonglong>(i));
        int column = 1;
        for (const QString& text : line.texts) {
            row->setText(column, text);
            row->setToolTip(column++, text);
        }
        for (const platform::Currency amount : line.amounts)
            SetMoney(*row, column++, amount);
        rows << row;
    }
    ShowRows(rows);
}

std::size_t LogList::LineOf(const QTreeWidgetItem& row) {
    return static_cast<std::size_t>(row.data(0, kOwnRole).toULongLong());
}

void LogList::ShowTicks(const std::vector<bool>& ticks) {
    Fill([&] {
        for (int i = 0; i < topLevelItemCount(); ++i) {
            QTreeWidgetItem& row = *topLevelItem(i);
            row.setCheckState(0, ticks.at(LineOf(row)) ? Qt::Checked : Qt::Unchecked);
        }
    });
}

void LogList::SelectBasePayments(bool basePayments) {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem& row = *topLevelItem(i);
        const bool isBase = FlagsOf(row) == static_cast<int>(LogFlags::BasePayment);
        row.setSelected(isBase == basePayments);
    }
}

} // namespace mortgages::screens
