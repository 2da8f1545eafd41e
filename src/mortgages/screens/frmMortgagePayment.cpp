#include "mortgages/screens/frmMortgagePayment.h"

#include <QMenu>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "mortgages/LogRows.h"
#include "mortgages/LogTable.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "ui_frmMortgagePayment.h"

namespace mortgages::screens {

using core::forms::Guarded;
using platform::qt::ToScreen;

frmMortgagePayment::frmMortgagePayment(QWidget* parent)
    : PaymentForm(parent), ui_(std::make_unique<Ui::frmMortgagePayment>()) {
    ui_->setupUi(this);
    ui_->lvwCharges->SetTicks(true);
    AddChargeItems();
    WirePayment(*ui_->lvwCharges);
    connect(ui_->lvwCharges, &LogList::Ticked, this,
            [this](std::size_t charge, bool on) { Guarded([&] { TickOne(charge, on); }); });
    connect(ui_->txtExtraPrincipal, &QLineEdit::textChanged, this,
            [this] { Guarded([this] { ShowTotal(); }); });
    connect(ui_->lvwCharges, &LogList::DeleteAsked, this,
            [this] { Perform([this] { RemoveCharges(); }); });
    connect(ui_->lvwCharges, &LogList::RowChosen, this, [this](std::int32_t id) {
        Perform([&] { core::EditRecord(core::kMortgageLog, id, payment_.idMortgage); });
    });
}

frmMortgagePayment::~frmMortgagePayment() = default;

void frmMortgagePayment::AddChargeItems() {
    QMenu& menu = ChargeMenu();
    AddItem(menu, "mnuCheckAll", tr("Tick &All"), [this] { TickAll(ChargeChoice::All, true); });
    AddItem(menu, "mnuCheckPI", tr("Tick &Principal and Interest"),
            [this] { TickAll(ChargeChoice::BasePayments, true); });
    AddItem(menu, "mnuUncheckAll", tr("&Untick All"),
            [this] { TickAll(ChargeChoice::All, false); });
    AddItem(menu, "mnuUncheckPI", tr("Untick Principal and &Interest"),
            [this] { TickAll(ChargeChoice::BasePayments, false); });
    menu.addSeparator();
    AddItem(menu, "mnuChargeAdd", tr("A&dd Charge..."),
            [this] { core::EditRecord(core::kMortgageLog, 0, payment_.idMortgage); });
    AddItem(menu, "mnuChargeDelete", tr("De&lete Charge"), [this] { RemoveCharges(); });
}

void frmMortgagePayment::Setup(std::int32_t idTransaction, std::int32_t idMortgage) {
    OpenPayment(idTransaction, [&] {
        payment_ = idTransaction == 0 ? ProposeMortgagePayment(idMortgage)
                                      : ReadMortgagePayment(idTransaction);
    });
}

void frmMortgagePayment::ShowPayment() {
    setWindowTitle(payment_.IsNew()
                       ? tr("Mortgage Payment")
                       : tr("Mortgage Payment: %1").arg(ToScreen(payment_.dateEffective.ToText())));
    ShowEntries(payment_, {std::string(kCategoryPayment)});
    ui_->txtExtraPrincipal->setEnabled(payment_.IsNew());
    RereadCharges();
}

void frmMortgagePayment::FillParties() {
    for (QComboBox* const combo : {ui_->cboFrom, ui_->cboTo})
        FillParty(core::kAccount, *combo);
}

void frmMortgagePayment::RereadCharges() {
    ReadCharges(payment_);
    ui_->lvwCharges->ShowTable(ChargeTable(payment_.charges), Ticks());
    ui_->lblEmpty->setText(payment_.charges.empty() ? tr("Nothing is open") : QString());
    ShowTotal();
}

std::vector<bool> frmMortgagePayment::Ticks() const {
    std::vector<bool> ticks;
    for (const PaymentCharge& charge : payment_.charges)
        ticks.push_back(charge.selected);
    return ticks;
}

void frmMortgagePayment::ShowTicks() {
    ui_->lvwCharges->ShowTicks(Ticks());
    ShowTotal();
}

void frmMortgagePayment::ShowTotal() {
    payment_.extraPrincipal = ui_->txtExtraPrincipal->Amount().value_or(platform::Currency());
    ui_->txtTotalDue->setText(ToScreen(platform::FormatNumber(payment_.PaidAmount(), "#.00")));
}

void frmMortgagePayment::TickOne(std::size_t charge, bool on) {
    const std::string_view note = Select(payment_, charge, on);
    ShowTicks();
    if (note.empty()) return MarkDirty();
    platform::TheDialogs().ShowMessage("Note", note, platform::Icon::Information);
}

void frmMortgagePayment::TickAll(ChargeChoice choice, bool on) {
    SelectAll(payment_, choice, on);
    MarkDirty();
    ShowTicks();
}

void frmMortgagePayment::RemoveCharges() {
    std::vector<ShownCharge> ticked;
    for (const PaymentCharge& charge : payment_.charges) {
        if (charge.selected) ticked.push_back({charge.idMortgageLog, charge.idTransaction});
    }
    if (ticked.empty()) {
        platform::TheDialogs().ShowMessage("Note", "Tick the charges that are to be deleted.",
                                           platform::Icon::Information);
        return;
    }
    DeleteLogRows(ticked, "Delete all selected charges?", SingleRow::AsSeveral);
}

std::vector<std::string> frmMortgagePayment::Errors() {
    std::vector<std::string> errors = EntryForm::Errors();
    if (!errors.empty()) return errors;
    ReadEntries(payment_);
    if (!ui_->txtExtraPrincipal->Amount()) return {"The extra principal is not a valid amount."};
    return PaymentErrors(payment_);
}

void frmMortgagePayment::PostPayment() {
    SubmitMortgagePayment(payment_);
}

void frmMortgagePayment::Refresh(core::RecordKind kind) {
    if (kind == core::kAccount) FillParties();
    if (kind == core::kMortgageLog) RereadCharges();
}

} // namespace mortgages::screens
