#include "leases/screens/Lease_Ledger.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>

#include "books/screens/frmTransaction.h"
#include "core/ChargeLedger.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"
#include "leases/DeleteCharges.h"
#include "leases/LedgerTable.h"
#include "leases/screens/ChargeList.h"
#include "leases/screens/PickMenu.h"
#include "leases/screens/frmRentPayment.h"
#include "leases/screens/frmReturnPayment.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace leases::screens {

using core::forms::Guarded;
using core::forms::PerformOn;
using platform::qt::ToScreen;

Lease_Ledger::Lease_Ledger(QWidget* parent)
    : QWidget(parent),
      tabs_(new QTabBar(this)),
      list_(new ChargeList(this)),
      total_(new QLabel(this)),
      token_([this](core::RecordKind kind, std::int16_t, std::int32_t) { Hear(kind); }) {
    setProperty("panel", true);
    tabs_->setObjectName(QStringLiteral("tab"));
    tabs_->setAccessibleName(tr("Part of the ledger"));
    tabs_->setExpanding(false);
    tabs_->setDrawBase(false);
    for (const LedgerTab& tab : kLedgerTabs)
        tabs_->addTab(ToScreen(tab.name));
    list_->setObjectName(QStringLiteral("lvw"));
    list_->setAccessibleName(tr("Charges and payments"));
    list_->setMinimumHeight(140);
    total_->setObjectName(QStringLiteral("lblTotal"));
    total_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs_);
    column->addWidget(list_, 1);
    MakeButtons();
    Connect();
    ShowRows();
}

void Lease_Ledger::MakeButtons() {
    add_ = MakeButton(tr("Add..."), tr("Add a charge or a credit (Insert)"), "cmdEditAdd", "add");
    edit_ =
        MakeButton(tr("Edit..."), tr("Open the charge in focus (Enter)"), "cmdEditEdit", "edit");
    delete_ = MakeButton(tr("Delete"), tr("Delete the selected charges (Delete)"), "cmdEditDelete",
                         "delete");
    core::binding::SetTag(*add_, "ADD");
    core::binding::SetTag(*edit_, "EDIT");
    core::binding::SetTag(*delete_, "DELETE");
    select_ = MakeButton(tr("Select"), tr("Select several charges at once"), "cmdSelect");
    select_->setMenu(new QMenu(select_));
    AddPickMenu(*select_->menu(), QStringLiteral("mnuSelect"),
                [this](ChargePick pick) { list_->Select(pick); });
    return_ = MakeButton(tr("Returned..."),
                         tr("The bank has returned the payment that settled the row in focus"),
                         "cmdReturn");
    charge_ = MakeButton(tr("Charge Deposit..."), tr("Keep a part of the deposit"), "cmdCharge");
    refund_ =
        MakeButton(tr("Refund Deposit..."), tr("Give the deposit back to the tenant"), "cmdRefund");
    rent_ = MakeButton(tr("Pay Rent..."), tr("Take a payment for what is open here"), "cmdRent");

    // Two rows: the deposits have more buttons than fit the form in one.
    auto* const rows = static_cast<QVBoxLayout*>(layout());
    auto* const edits = new QHBoxLayout;
    for (QWidget* const button : {add_, edit_, delete_, select_})
        edits->addWidget(button);
    edits->addStretch();
    edits->addWidget(total_);
    rows->addLayout(edits);
    auto* const payments = new QHBoxLayout;
    payments->addStretch();
    for (QWidget* const button : {return_, charge_, refund_, rent_})
        payments->addWidget(button);
    rows->addLayout(payments);
}

QPushButton* Lease_Ledger::MakeButton(const QString& text, const QString& hint, const char* name,
                                      const char* icon) {
    auto* const button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    button->setAutoDefault(false);
    if (icon) button->setIcon(platform::qt::LoadIcon(QLatin1String(icon)));
    return button;
}

void Lease_Ledger::Connect() {
    const auto on = [this](QPushButton* button, auto work) {
        connect(button, &QPushButton::clicked, this, [this, work] { PerformOn(*this, work); });
    };
    connect(tabs_, &QTabBar::currentChanged, this, [this] { Guarded([this] { ShowRows(); }); });
    connect(list_, &ChargeList::SelectionMoved, this, &Lease_Ledger::ShowAvailable);
    connect(list_, &ChargeList::RowChosen, this,
            [this](std::int32_t id) { PerformOn(*this, [&] { Edit(id); }); });
    connect(list_, &ChargeList::DeleteAsked, delete_, &QPushButton::click);
    auto* const insert = new QShortcut(QKeySequence(Qt::Key_Insert), list_);
    insert->setContext(Qt::WidgetShortcut);
    insert->setAutoRepeat(false);
    connect(insert, &QShortcut::activated, add_, &QPushButton::click);
    on(add_, [this] { Add(); });
    on(edit_, [this] { Edit(list_->CurrentId()); });
    on(delete_, [this] { Delete(); });
    on(rent_, [this] { Pay(); });
    on(return_, [this] { Return(); });
    on(refund_, [this] { OpenDeposit(ProposeDepositRefund(idLease_), "Deposit Refund|2"); });
    on(charge_, [this] { OpenDeposit(ProposeDepositCharge(idLease_), "Deposit Charge|0"); });
}

const LedgerTab& Lease_Ledger::Tab() const {
    return kLedgerTabs[static_cast<std::size_t>(std::max(0, tabs_->currentIndex()))];
}

void Lease_Ledger::Load(std::int32_t idLease) {
    idLease_ = idLease;
    ShowRows();
}

void Lease_Ledger::OfferTabs(bool subsidy, bool option) {
    for (int i = 0; i < tabs_->count(); ++i) {
        const TransactionClass rentClass = kLedgerTabs[static_cast<std::size_t>(i)].rentClass;
        if (rentClass == TransactionClass::Subsidy) tabs_->setTabVisible(i, subsidy);
        if (rentClass == TransactionClass::OptionCredit) tabs_->setTabVisible(i, option);
    }
}

void Lease_Ledger::ShowRows() {
    const std::vector<LedgerRow> rows =
        idLease_ == 0 ? std::vector<LedgerRow>() : ReadLedger(idLease_, Tab());
    list_->ShowTable(LedgerTable(rows, Tab().rows));
    ShowTotal(rows);
    ShowAvailable();
}

void Lease_Ledger::ShowTotal(const std::vector<LedgerRow>& rows) {
    platform::Currency sum;
    for (const LedgerRow& row : rows)
        sum += row.amount;
    const QString amount = ToScreen(platform::FormatMoney(sum));
    if (idLease_ == 0) {
        total_->setText(tr("The ledger begins when the lease is saved."));
    } else if (Tab().rows == LedgerRows::Open) {
        total_->setText(
            rows.empty() ? tr("Nothing is open")
                         : tr("%n open: %1", nullptr, static_cast<int>(rows.size())).arg(amount));
    } else {
        total_->setText(Tab().rows == LedgerRows::All ? tr("Credits: %1").arg(amount) : QString());
    }
}

void Lease_Ledger::ShowAvailable() {
    const bool isStored = idLease_ != 0;
    const bool isSelected = list_->CurrentId() != 0;
    const bool isDeposit = Tab().rentClass == TransactionClass::Deposit;
    add_->setEnabled(isStored);
    edit_->setEnabled(isSelected);
    delete_->setEnabled(!list_->SelectedIds().empty());
    select_->setEnabled(list_->topLevelItemCount() > 0);
    rent_->setVisible(Tab().rentClass != TransactionClass::OptionCredit);
    rent_->setEnabled(isStored);
    rent_->setText(Tab().rentClass == TransactionClass::Rent ? tr("Pay Rent...")
                   : isDeposit                               ? tr("Pay Deposit...")
                                                             : tr("Pay Subsidy..."));
    return_->setVisible(Tab().rows == LedgerRows::Settled);
    return_->setEnabled(isSelected);
    for (QPushButton* const button : {refund_, charge_}) {
        button->setVisible(isDeposit);
        button->setEnabled(isStored);
    }
}

void Lease_Ledger::Add() {
    core::EditRecord(core::kRentLog, 0, idLease_, 0, static_cast<int>(Tab().rentClass));
}

void Lease_Ledger::Edit(std::int32_t id) {
    if (id == 0) return;
    core::EditRecord(core::kRentLog, id, idLease_, 0, static_cast<int>(Tab().rentClass));
}

void Lease_Ledger::Delete() {
    DeleteCharges(idLease_, list_->SelectedIds(), "Delete all selected items?",
                  Tab().rows == LedgerRows::Open ? ShownAs::Open : ShownAs::OpenOrSettled);
}

void Lease_Ledger::Pay() {
    (new frmRentPayment)->Setup(0, idLease_, Tab().rentClass, LeaseUpdate::Yes);
}

void Lease_Ledger::Return() {
    const auto payment = core::SettledBy(core::kRentLedger, list_->CurrentId());
    if (payment.value_or(0) != 0) (new frmReturnPayment)->Setup(*payment);
}

void Lease_Ledger::OpenDeposit(const books::Transaction& proposed, std::string_view category) {
    books::screens::TransactionSetup setup;
    setup.fromType = proposed.debit.type;
    setup.fromId = proposed.debit.id;
    setup.toType = proposed.credit.type;
    setup.toId = proposed.credit.id;
    setup.toIsToBeChosen = proposed.credit.id == 0;
    setup.category = category;
    setup.amount = proposed.amount;
    setup.description = proposed.description;
    setup.references.idLease = proposed.idLease;
    setup.references.idTenant = proposed.idTenant;
    setup.references.idBuilding = proposed.idBuilding;
    setup.references.idUnit = proposed.idUnit;
    setup.transactionClass = proposed.transactionClass;
    setup.flags = proposed.flags;
    (new books::screens::frmTransaction)->Setup(setup);
}

/// Deleting a transaction and refunding a deposit change the ledger too.
void Lease_Ledger::Hear(core::RecordKind kind) {
    if (idLease_ == 0 || (kind != core::kRentLog && kind != core::kTransaction)) return;
    ShowRows();
    Q_EMIT Changed();
}

} // namespace leases::screens
