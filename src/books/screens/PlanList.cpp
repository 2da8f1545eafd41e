#include "books/screens/PlanList.h"

#include <QHeaderView>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTreeWidget>
#include <algorithm>

#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"

namespace books::screens {

using core::forms::PerformOn;

void PlanList::Connect(QTreeWidget& list, int wide, QPushButton* add, QPushButton& update,
                       QPushButton& remove) {
    list_ = &list;
    wide_ = wide;
    update_ = &update;
    remove_ = &remove;
    list.setRootIsDecorated(false);
    list.setUniformRowHeights(true);
    list.setAlternatingRowColors(true);
    list.header()->setStretchLastSection(false);
    list.header()->setSectionResizeMode(wide, QHeaderView::Stretch);
    connect(&list, &QTreeWidget::currentItemChanged, this, [this] {
        if (filling_) return;
        ShowAvailable();
        if (Row() >= 0) ShowBoxes(Row());
    });
    connect(&list, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        if (!filling_) Ticked(*item);
    });
    const auto on = [this](QPushButton& button, auto work) {
        button.setAutoDefault(false);
        connect(&button, &QPushButton::clicked, this, [this, work] { PerformOn(*this, work); });
    };
    if (add != nullptr) on(*add, [this] { StoreRow(Count()); });
    on(update, [this] { StoreRow(Row()); });
    on(remove, [this] { RemoveRow(); });
    auto* const key = new QShortcut(QKeySequence(Qt::Key_Delete), &list);
    key->setAutoRepeat(false);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, remove_, &QPushButton::click);
}

void PlanList::ShowRows(int select) {
    {
        const QScopedValueRollback filling(filling_, true);
        list_->clear();
        QList<QTreeWidgetItem*> items;
        for (int row = 0; row < Count(); ++row) {
            auto* const item = new QTreeWidgetItem(Cells(row));
            if (const auto ticked = IsTicked(row))
                item->setCheckState(0, *ticked ? Qt::Checked : Qt::Unchecked);
            for (int column = 0; column < item->columnCount(); ++column) {
                bool isNumber = false;
                QString(item->text(column)).remove(u',').toDouble(&isNumber);
                if (!isNumber) continue;
                item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
                list_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
            }
            items.push_back(item);
        }
        list_->addTopLevelItems(items);
        const int row = std::min(select, Count() - 1);
        if (row >= 0) list_->setCurrentItem(list_->topLevelItem(row));
        SizeColumns();
    }
    ShowAvailable();
    if (Row() >= 0) ShowBoxes(Row());
}

void PlanList::SizeColumns() {
    constexpr int kGap = 12;
    for (int column = 0; column < list_->columnCount(); ++column) {
        if (column == wide_) continue;
        list_->resizeColumnToContents(column);
        list_->setColumnWidth(column, list_->columnWidth(column) + kGap);
    }
}

int PlanList::Row() const {
    return list_->indexOfTopLevelItem(list_->currentItem());
}

void PlanList::StoreRow(int row) {
    if (row < 0 || !core::forms::ShowErrorRoll(Errors(row))) return;
    Store(row);
    ShowRows(row);
    Q_EMIT Changed();
}

void PlanList::RemoveRow() {
    const int row = Row();
    if (row < 0) return;
    Remove(row);
    ShowRows(row);
    Q_EMIT Changed();
}

void PlanList::Ticked(const QTreeWidgetItem& item) {
    const int row = list_->indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(&item));
    if (row < 0 || !IsTicked(row)) return;
    Tick(row, item.checkState(0) == Qt::Checked);
    Q_EMIT Changed();
}

void PlanList::ShowAvailable() {
    for (QPushButton* const button : {update_, remove_}) {
        button->setEnabled(Row() >= 0);
        button->setToolTip(Row() >= 0 ? QString() : tr("Select a row first"));
    }
}

} // namespace books::screens
