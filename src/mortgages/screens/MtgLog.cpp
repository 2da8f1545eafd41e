#include "mortgages/screens/MtgLog.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <algorithm>
#include <functional>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"
#include "mortgages/LogTable.h"
#include "mortgages/screens/LogList.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "platform/qt/Text.h"

namespace mortgages::screens {

using core::forms::Guarded;
using core::forms::PerformOn;
using platform::qt::ToScreen;

MtgLog::MtgLog(QWidget* parent)
    : QWidget(parent),
      tabs_(new QTabBar(this)),
      list_(new LogList(this)),
      menu_(new QMenu(this)),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) {
          if (kind == core::kMortgageLog || kind == core::kTransaction) ShowRows();
      }) {
    setProperty("panel", true);
    tabs_->setObjectName(QStringLiteral("tab"));
    tabs_->setAccessibleName(tr("Part of the log"));
    tabs_->setExpanding(false);
    tabs_->setDrawBase(false);
    tabs_->addTab(tr("Payment Due"));
    tabs_->addTab(tr("Payment History"));
    list_->setObjectName(QStringLiteral("lvw"));
    list_->setAccessibleName(tr("Charges and payments"));
    list_->setMinimumHeight(140);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs_);
    column->addWidget(list_, 1);
    MakeButtons();
    MakeMenu();
    Connect();
    ShowRows();
}

QPushButton* MtgLog::MakeButton(const QString& text, const QString& hint, const char* name,
                                const char* tag) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    button->setAutoDefault(false);
    core::binding::SetTag(*button, tag);
    return button;
}

void MtgLog::MakeButtons() {
    add_ = MakeButton(tr("Add..."), tr("Add a charge (Insert)"), "cmdEditAdd", "ADD");
    edit_ = MakeButton(tr("Edit..."), tr("Open the row in focus (Enter)"), "cmdEditEdit", "EDIT");
    delete_ = MakeButton(tr("Delete"), tr("Delete the selected rows (Delete)"), "cmdEditDelete",
                         "DELETE");
    pay_ = MakeButton(tr("&Make Payment"), tr("Pay charges of this mortgage"), "cmdPayment",
                      "PAYMENT");
    pay_->setMinimumWidth(pay_->sizeHint().width() + 16);
    auto* const row = new QHBoxLayout;
    for (QWidget* const button : {add_, edit_, delete_})
        row->addWidget(button);
    row->addStretch();
    row->addWidget(pay_);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void MtgLog::MakeMenu() {
    const auto add = [this](const char* name, const QString& text, auto work) {
        QAction* const action = menu_->addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, work);
    };
    add("mnuSelectAll", tr("Select &All"), [this] { list_->selectAll(); });
    add("mnuSelectPI", tr("Select &Principal and Interest"),
        [this] { list_->SelectBasePayments(true); });
    add("mnuSelectOther", tr("Select &Others"), [this] { list_->SelectBasePayments(false); });
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list_, &QWidget::customContextMenuRequested, this,
            [this](QPoint where) { menu_->popup(list_->viewport()->mapToGlobal(where)); });
}

void MtgLog::Connect() {
    connect(tabs_, &QTabBar::currentChanged, this, [this] { Guarded([this] { ShowRows(); }); });
    connect(list_, &QTreeWidget::itemSelectionChanged, this, &MtgLog::ShowAvailable);
    connect(list_, &LogList::RowChosen, this,
            [this](std::int32_t id) { PerformOn(*this, [&] { Edit(id); }); });
    connect(list_, &LogList::DeleteAsked, delete_, &QPushButton::click);
    auto* const insert = new QShortcut(QKeySequence(Qt::Key_Insert), list_);
    insert->setContext(Qt::WidgetShortcut);
    insert->setAutoRepeat(false);
    connect(insert, &QShortcut::activated, add_, &QPushButton::click);
    const auto on = [this](QPushButton* button, const std::function<void()>& work) {
        connect(button, &QPushButton::clicked, this, [this, work] { PerformOn(*this, work); });
    };
    on(add_, [this] { Add(); });
    on(edit_, [this] { Edit(list_->CurrentId()); });
    on(delete_, [this] { Delete(); });
    on(pay_, [this] { Pay(); });
}

LogPart MtgLog::Part() const {
    return tabs_->currentIndex() == 1 ? LogPart::PaymentHistory : LogPart::PaymentDue;
}

void MtgLog::Load(std::int32_t idMortgage) {
    idMortgage_ = idMortgage;
    ShowRows();
}

void MtgLog::ShowRows() {
    rows_ = idMortgage_ == 0 ? std::vector<LogRow>() : ReadLog(idMortgage_, Part());
    list_->ShowTable(LogTable(rows_));
    ShowAvailable();
}

void MtgLog::ShowAvailable() {
    add_->setEnabled(idMortgage_ != 0);
    pay_->setEnabled(idMortgage_ != 0);
    edit_->setEnabled(list_->CurrentId() != 0);
    delete_->setEnabled(!list_->SelectedIds().empty());
}

void MtgLog::Add() {
    core::EditRecord(core::kMortgageLog, 0, idMortgage_);
}

/// A settled charge is edited on its payment.
void MtgLog::Edit(std::int32_t id) {
    if (id == 0) return;
    if (Part() == LogPart::PaymentDue) {
        core::EditRecord(core::kMortgageLog, id, idMortgage_);
    } else {
        core::EditRecord(core::kTransaction, TransactionOfLogRow(id));
    }
}

void MtgLog::Delete() {
    std::vector<ShownCharge> selected;
    for (const std::int32_t id : list_->SelectedIds()) {
        const auto row = std::find_if(rows_.begin(), rows_.end(),
                                      [id](const LogRow& at) { return at.idMortgageLog == id; });
        if (row != rows_.end()) selected.push_back({id, row->entry.idTransaction});
    }
    DeleteLogRows(selected, "Delete all selected items?");
}

void MtgLog::Pay() {
    (new frmMortgagePayment)->Setup(0, idMortgage_);
}

} // namespace mortgages::screens
