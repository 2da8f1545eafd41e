#include "leases/screens/PreviewList.h"

#include <QHeaderView>
#include <array>

#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace leases::screens {

using platform::qt::ToScreen;

namespace {

enum Column { kWhat, kDate, kCategory, kDescription, kAmount };

constexpr std::array kPercents = {23, 13, 17, 32, 15};

} // namespace

PreviewList::PreviewList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderLabels(
        {tr("Will happen"), tr("Date"), tr("Category"), tr("Description"), tr("Amount")});
    headerItem()->setTextAlignment(kAmount, Qt::AlignRight | Qt::AlignVCenter);
    setAccessibleName(tr("Rows that will be written"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    header()->setStretchLastSection(false);
}

void PreviewList::ShowPreview(const PreviewRows& rows) {
    clear();
    for (const PreviewRow& row : rows) {
        auto* const item = new QTreeWidgetItem(
            this, {ToScreen(row.what), ToScreen(row.date.ToText()), ToScreen(row.category),
                   ToScreen(row.description),
                   row.amount.IsZero() ? QString() : ToScreen(platform::FormatMoney(row.amount))});
        item->setTextAlignment(kAmount, Qt::AlignRight | Qt::AlignVCenter);
        for (const int column : {kWhat, kDescription})
            item->setToolTip(column, item->text(column));
    }
}

void PreviewList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    for (std::size_t column = 0; column < kPercents.size(); ++column)
        setColumnWidth(static_cast<int>(column), viewport()->width() * kPercents[column] / 100);
}

} // namespace leases::screens
