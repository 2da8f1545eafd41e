#include "mortgages/screens/frmMortgagePayment.h"

#include <QMenu>
#include <QMenuBar>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "mortgages/LogRows.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "ui_frmMortgagePayment.h"

namespace mortgages::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;
using core::binding::SelectByText;
using core::binding::SelectOrName;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmMortgagePayment::frmMortgagePayment(QWidget* parent)
    : EntryForm(parent),
      ui_(std::make_unique<Ui::frmMortgagePayment>()),
      chargeMenu_(new QMenu(tr("&Charges"), this)) {
    ui_->setupUi(this);
    ui_->lvwCharges->SetTicks(true);
    ui_->lvwCharges->SetColumns(
        {tr("Date"), tr("Period"), tr("Category"), tr("Description"), tr("Amount")}, 3, 3);
    MakeMenu();
    Wire(tr("&Submit"), tr("Post the payment and close (Enter)"), "SUBMIT");
    connect(ui_->lvwCharges, &LogList::Ticked, this,
            [this](std::size_t charge, bool on) { Guarded([&] { TickOne(charge, on); }); });
    connect(ui_->txtExtraPrincipal, &QLineEdit::textChanged, this,
            [this] { Guarded([this] { ShowTotal(); }); });
    connect(ui_->lvwCharges, &LogList::DeleteAsked, this,
            [this] { Guarded([this] { RemoveCharges(); }); });
    connect(ui_->lvwCharges, &LogList::RowChosen, this, [this](std::int32_t id) {
        Guarded([&] { core::EditRecord(core::kMortgageLog, id, payment_.idMortgage); });
    });
}

frmMortgagePayment::~frmMortgagePayment() = default;

void frmMortgagePayment::MakeMenu() {
    auto* const bar = new QMenuBar(this);
    bar->addMenu(chargeMenu_);
    const auto add = [this](const char* name, const QString& text, auto work) {
        QAction* const action = chargeMenu_->addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [work] { Guarded(work); });
    };
    add("mnuCheckAll", tr("Tick &All"), [this] { TickAll(ChargeChoice::All, true); });
    add("mnuCheckPI", tr("Tick &Principal and Interest"),
        [this] { TickAll(ChargeChoice::BasePayments, true); });
    add("mnuUncheckAll", tr("&Untick All"), [this] { TickAll(ChargeChoice::All, false); });
    add("mnuUncheckPI", tr("Untick Principal and &Interest"),
        [this] { TickAll(ChargeChoice::BasePayments, false); });
    chargeMenu_->addSeparator();
    add("mnuChargeAdd", tr("A&dd Charge..."),
        [this] { core::EditRecord(core::kMortgageLog, 0, payment_.idMortgage); });
    add("mnuChargeDelete", tr("De&lete Charge"), [this] { RemoveCharges(); });
    layout()->setMenuBar(bar);
    ui_->lvwCharges->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui_->lvwCharges, &QWidget::customContextMenuRequested, this, [this](QPoint where) {
        chargeMenu_->popup(ui_->lvwCharges->viewport()->mapToGlobal(where));
    });
}

void frmMortgagePayment::Setup(std::int32_t idTransaction, std::int32_t idMortgage) {
    const bool found = Guarded([&] {
        payment_ = idTransaction == 0 ? ProposeMortgagePayment(idMortgage)
                                      : ReadMortgagePayment(idTransaction);
    });
    if (!found) {
        deleteLater();
        return;
    }
    core::binding::SetTag(*this, idTransaction == 0 ? "" : std::to_string(idTransaction));
    Begin([this] { ShowPayment(); });
    ui_->lvwCharges->setFocus();
}

void frmMortgagePayment::ShowPayment() {
    setWindowTitle(payment_.idTransaction == 0
                       ? tr("Mortgage Payment")
                       : tr("Mortgage Payment: %1").arg(ToScreen(payment_.dateEffective.ToText())));
    FillAccounts();
    SelectOrName(*ui_->cboFrom, payment_.fromAccount, payment_.fromName);
    SelectOrName(*ui_->cboTo, payment_.toAccount, payment_.toName);
    ui_->cboPaymentType->addItem(ToScreen(kCategoryPayment));
    SelectByText(*ui_->cboPaymentType, payment_.paymentType, {.setText = true});
    ui_->dpEffectiveDate->SetDay(payment_.dateEffective);
    ui_->txtCheckNumber->setText(ToScreen(payment_.checkNumber));
    ui_->txtDescription->setText(ToScreen(payment_.description));
    ui_->txtDescription->setCursorPosition(0);
    ui_->txtExtraPrincipal->setEnabled(payment_.idTransaction == 0);
    ShowCharges();
}

/// A name that was typed stays, and no account is chosen for it.
void frmMortgagePayment::FillAccounts() {
    for (QComboBox* const combo : {ui_->cboFrom, ui_->cboTo})
        FillList(core::kAccount, *combo, {.keepText = GetSelectedId(*combo) == 0});
}

void frmMortgagePayment::ShowCharges() {
    ReadCharges(payment_);
    std::vector<LogLine> lines;
    lines.reserve(payment_.charges.size());
    for (const PaymentCharge& charge : payment_.charges) {
        lines.push_back(
            {.idMortgageLog = charge.idMortgageLog,
             .flags = charge.flags,
             .date = charge.datePosted,
             .texts = std::vector{QString::number(charge.period), ToScreen(charge.category),
                                  ToScreen(charge.description)},
             .amounts = std::vector{charge.total},
             .ticked = charge.selected});
    }
    ui_->lvwCharges->ShowLines(lines);
    ui_->lblEmpty->setText(lines.empty() ? tr("Nothing is open") : QString());
    ShowTicks();
}

void frmMortgagePayment::ShowTicks() {
    std::vector<bool> ticks;
    ticks.reserve(payment_.charges.size());
    for (const PaymentCharge& charge : payment_.charges)
        ticks.push_back(charge.selected);
    ui_->lvwCharges->ShowTicks(ticks);
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

void frmMortgagePayment::ReadEntries() {
    payment_.dateEffective = ui_->dpEffectiveDate->Day().value_or(platform::Date());
    payment_.fromAccount = GetSelectedId(*ui_->cboFrom);
    payment_.fromName = FromScreen(ui_->cboFrom->currentText());
    payment_.toAccount = GetSelectedId(*ui_->cboTo);
    payment_.toName = FromScreen(ui_->cboTo->currentText());
    payment_.checkNumber = FromScreen(ui_->txtCheckNumber->text());
    payment_.paymentType = FromScreen(ui_->cboPaymentType->currentText());
    payment_.description = platform::Trim(FromScreen(ui_->txtDescription->text()));
}

std::vector<std::string> frmMortgagePayment::Errors() {
    std::vector<std::string> errors = EntryForm::Errors();
    if (!errors.empty()) return errors;
    ReadEntries();
    if (!ui_->txtExtraPrincipal->Amount()) return {"The extra principal is not a valid amount."};
    return PaymentErrors(payment_);
}

void frmMortgagePayment::Store() {
    SubmitMortgagePayment(payment_);
}

void frmMortgagePayment::Refresh(std::int16_t kind) {
    if (kind == core::kAccount) FillAccounts();
    if (kind == core::kMortgageLog) ShowCharges();
}

} // namespace mortgages::screens
