#include "leases/screens/frmRentPayment.h"

#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "core/Descriptions.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "leases/DeleteCharges.h"
#include "leases/PaymentOutlook.h"
#include "leases/screens/PickMenu.h"
#include "leases/screens/frmRentSplit.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "reports/PrintReport.h"
#include "reports/ReportMenus.h"
#include "ui_frmRentPayment.h"

namespace leases::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;
using core::binding::SelectById;
using core::binding::SelectByText;
using core::binding::SelectOrName;
using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

/// A name that was typed stays, and nobody is chosen for it.
void FillParties(int kind, QComboBox& combo) {
    FillList(kind, combo, {.keepText = GetSelectedId(combo) == 0});
}

} // namespace

frmRentPayment::frmRentPayment(QWidget* parent)
    : EntryForm(parent),
      ui_(std::make_unique<Ui::frmRentPayment>()),
      chargeMenu_(new QMenu(tr("&Charges"), this)) {
    ui_->setupUi(this);
    ui_->dpEffectiveDate->SetRequired(true);
    ui_->lvwCharges->SetTicks(true);
    ui_->lvwCharges->SetColumns(
        {tr("Date"), tr("Category"), tr("Description"), tr("Amount"), QString()},
        {20, 20, 40, 15, 0});
    ui_->cboFromType->addItem(tr("Account"), core::kAccount);
    ui_->cboFromType->addItem(tr("Tenant"), core::kTenant);
    MakeMenu();
    Wire(tr("&Submit"), tr("Post the payment and close (Enter)"), "SUBMIT");
    Connect();
}

frmRentPayment::~frmRentPayment() = default;

void frmRentPayment::MakeMenu() {
    auto* const bar = new QMenuBar(this);
    QMenu* const payment = bar->addMenu(tr("Pa&yment"));
    QAction* const submit = payment->addAction(tr("&Submit"));
    submit->setObjectName(QStringLiteral("mnuSubmit"));
    connect(submit, &QAction::triggered, this, &frmRentPayment::Submit);
    receiptMenu_ = payment->addMenu(tr("Print &Receipt"));
    receiptMenu_->setObjectName(QStringLiteral("mnuReceipts"));
    receiptMenu_->setToolTipsVisible(true);
    bar->addMenu(chargeMenu_);
    AddChargeItems(*chargeMenu_);
    layout()->setMenuBar(bar);
}

/// The receipts of the catalogue, for a payment that has been posted.
void frmRentPayment::FillReceipts() {
    receiptMenu_->clear();
    const auto items = reports::ReceiptsOf(reports::RecordForm::Lease);
    for (const reports::ReportMenuItem& item : items) {
        QAction* const action =
            receiptMenu_->addAction(ToScreen(item.caption).replace(u'&', QLatin1String("&&")));
        action->setObjectName(QStringLiteral("mnuReceiptItem"));
        action->setEnabled(payment_.idTransaction != 0 && reports::HasReportViewer());
        if (payment_.idTransaction == 0)
            action->setToolTip(tr("Submit the payment first, then open it again"));
        connect(action, &QAction::triggered, this, [this, index = item.index] {
            Guarded([&] { reports::PrintReport(payment_.idTransaction, index); });
        });
    }
    if (!items.empty()) return;
    QAction* const none = receiptMenu_->addAction(tr("(no receipts)"));
    none->setEnabled(false);
    none->setToolTip(tr("The reports folder has no receipt for leases"));
}

void frmRentPayment::AddChargeItems(QMenu& menu) {
    const auto add = [&](const char* name, const QString& text, auto work) {
        QAction* const action = menu.addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, [work] { Guarded(work); });
    };
    AddPickMenu(menu, QStringLiteral("mnuCheck"),
                [this](ChargePick pick) { ui_->lvwCharges->Tick(pick); });
    menu.addSeparator();
    AddPickMenu(menu, QStringLiteral("mnuSelect"),
                [this](ChargePick pick) { ui_->lvwCharges->Select(pick); });
    menu.addSeparator();
    add("mnuChargeAdd", tr("A&dd Charge..."), [this] { AddCharge(); });
    add("mnuChargeEdit", tr("&Edit Charge..."),
        [this] { EditCharge(ui_->lvwCharges->CurrentId()); });
    add("mnuChargeSplit", tr("S&plit Charge..."), [this] { SplitCharge(); });
    add("mnuChargeDelete", tr("De&lete Charge"), [this] { RemoveCharges(); });
    ui_->lvwCharges->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui_->lvwCharges, &QWidget::customContextMenuRequested, this, [this](QPoint where) {
        chargeMenu_->popup(ui_->lvwCharges->viewport()->mapToGlobal(where));
    });
}

void frmRentPayment::Connect() {
    connect(ui_->cboFromType, &QComboBox::currentIndexChanged, this,
            [this] { Guarded([this] { FillPayers(); }); });
    connect(ui_->lvwCharges, &ChargeList::TicksChanged, this,
            [this] { Guarded([this] { TicksChanged(); }); });
    connect(ui_->cmdRestoreTicks, &QPushButton::clicked, this,
            [this] { Guarded([this] { RestoreTicks(); }); });
    connect(ui_->cboTo, &QComboBox::currentTextChanged, this, [this] {
        if (!Loading()) Guarded([this] { ShowTotal(); });
    });
    connect(ui_->lvwCharges, &ChargeList::SelectionMoved, this, &frmRentPayment::ShowAvailable);
    connect(ui_->lvwCharges, &ChargeList::RowChosen, this,
            [this](std::int32_t id) { Guarded([&] { EditCharge(id); }); });
    connect(ui_->lvwCharges, &ChargeList::DeleteAsked, this,
            [this] { Guarded([this] { RemoveCharges(); }); });
    connect(ui_->chkShowPending, &QCheckBox::toggled, this,
            [this] { Guarded([this] { Quietly([this] { RereadCharges(); }); }); });
    connect(ui_->cmdSplit, &QPushButton::clicked, this,
            [this] { Guarded([this] { SplitCharge(); }); });
}

void frmRentPayment::Setup(std::int32_t idTransaction, std::int32_t idLease, RentClass rentClass,
                           LeaseUpdate update) {
    update_ = update;
    const bool found = Guarded([&] {
        payment_ =
            idTransaction == 0 ? ProposePayment(idLease, rentClass) : ReadPayment(idTransaction);
    });
    if (!found) {
        deleteLater();
        return;
    }
    core::binding::SetTag(*this, idTransaction == 0 ? "" : std::to_string(idTransaction));
    Begin([this] { ShowPayment(); });
    ui_->lvwCharges->setFocus();
}

void frmRentPayment::ShowPayment() {
    const bool isNew = payment_.idTransaction == 0;
    setWindowTitle(
        tr("%1: %2").arg(ToScreen(payment_.paymentWord),
                         ToScreen(core::GetDescription(core::kLease, payment_.idLease))));
    ui_->chkShowPending->setVisible(!isNew);
    FillAccounts();
    SelectOrName(*ui_->cboTo, payment_.toAccount, payment_.toName);
    SelectById(*ui_->cboFromType, payment_.fromType, {.selectFirst = true});
    FillPayers();
    SelectOrName(*ui_->cboFrom, payment_.fromId, payment_.fromName);
    for (const std::string& word : PaymentWords(payment_.rentClass))
        ui_->cboPaymentType->addItem(ToScreen(word));
    SelectByText(*ui_->cboPaymentType, payment_.paymentWord, {.setText = true});
    const platform::Date day = payment_.dateEffective;
    ui_->dpEffectiveDate->SetDay(day.IsSet() ? day : platform::Today());
    ui_->txtCheckNumber->setText(ToScreen(payment_.checkNumber));
    ui_->txtDescription->setText(ToScreen(payment_.description));
    ui_->txtDescription->setCursorPosition(0);
    FillReceipts();
    ShowCharges();
}

void frmRentPayment::FillPayers() {
    FillParties(GetSelectedId(*ui_->cboFromType), *ui_->cboFrom);
}

void frmRentPayment::FillAccounts() {
    FillParties(core::kAccount, *ui_->cboTo);
}

void frmRentPayment::ShowCharges() {
    ReadCharges(payment_,
                ui_->chkShowPending->isChecked() ? OpenCharges::Offer : OpenCharges::Leave);
    ListCharges();
}

void frmRentPayment::ListCharges() {
    std::vector<ChargeLine> lines;
    lines.reserve(payment_.charges.size());
    for (const PaymentCharge& charge : payment_.charges) {
        lines.push_back({charge.idRentLog, charge.flags, charge.datePosted, charge.category,
                         charge.description, charge.amount, std::nullopt, charge.selected});
    }
    ui_->lvwCharges->ShowLines(lines);
    ShowTotal();
    ShowAvailable();
}

void frmRentPayment::ReadTicks() {
    const std::vector<std::int32_t> ticked = ui_->lvwCharges->TickedIds();
    for (PaymentCharge& charge : payment_.charges)
        charge.selected = std::ranges::find(ticked, charge.idRentLog) != ticked.end();
}

void frmRentPayment::TicksChanged() {
    MarkDirty();
    tickedAgain_ = false;
    ShowTotal();
}

/// Every open charge is ticked again, but the user's own ticks are not forgotten.
void frmRentPayment::RereadCharges() {
    ReadTicks();
    if (!tickedAgain_) ticks_.Keep(payment_);
    ReadCharges(payment_,
                ui_->chkShowPending->isChecked() ? OpenCharges::Offer : OpenCharges::Leave);
    tickedAgain_ = ticks_.DifferFrom(payment_);
    ListCharges();
}

void frmRentPayment::ChargeSplit(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts) {
    ticks_.Split(idRentLog, parts);
    tickedAgain_ = ticks_.DifferFrom(payment_);
    ShowTotal();
}

void frmRentPayment::RestoreTicks() {
    ReadTicks();
    ticks_.Restore(payment_);
    tickedAgain_ = false;
    MarkDirty();
    ListCharges();
    ui_->lvwCharges->setFocus();
}

void frmRentPayment::ReadReceiver() {
    payment_.toAccount = GetSelectedId(*ui_->cboTo);
    payment_.toName = FromScreen(ui_->cboTo->currentText());
}

void frmRentPayment::ShowTotal() {
    ReadTicks();
    ReadReceiver();
    ui_->txtAmount->setText(ToScreen(platform::FormatNumber(payment_.Total(), "#.00")));
    QString outlook = ToScreen(DescribeOutlook(payment_));
    if (tickedAgain_) {
        outlook += payment_.idTransaction == 0
                       ? tr(". The charges changed: every open charge is ticked again")
                       : tr(". The charges changed: the ticks are as they were stored");
    }
    ui_->lblOutlook->setText(outlook);
    ui_->cmdRestoreTicks->setVisible(tickedAgain_);
}

void frmRentPayment::ShowAvailable() {
    const bool isChosen = ui_->lvwCharges->CurrentId() != 0;
    const bool isRent = payment_.rentClass == RentClass::Rent;
    ui_->cmdSplit->setEnabled(isChosen);
    for (QAction* const action : chargeMenu_->actions()) {
        const QString name = action->objectName();
        if (name.startsWith(QLatin1String("mnuCharge")) && !name.endsWith(QLatin1String("Add"))) {
            action->setEnabled(isChosen);
        } else if (name.endsWith(QLatin1String("Rent")) || name.endsWith(QLatin1String("Other"))) {
            action->setEnabled(isRent);
        }
    }
}

void frmRentPayment::AddCharge() {
    core::EditRecord(core::kRentLog, 0, payment_.idLease, 0, static_cast<int>(payment_.rentClass));
}

void frmRentPayment::EditCharge(std::int32_t id) {
    if (id == 0) return;
    core::EditRecord(core::kRentLog, id, payment_.idLease, 0, static_cast<int>(payment_.rentClass));
}

void frmRentPayment::SplitCharge() {
    const std::int32_t id = ui_->lvwCharges->CurrentId();
    if (id == 0) return;
    auto* const split = new frmRentSplit;
    connect(split, &frmRentSplit::Saved, this, &frmRentPayment::ChargeSplit);
    split->Setup(id);
}

void frmRentPayment::RemoveCharges() {
    DeleteCharges(payment_.idLease, ui_->lvwCharges->SelectedIds(), "Delete all selected charges?",
                  payment_.idTransaction == 0 ? ShownAs::Open : ShownAs::OpenOrSettled);
}

std::vector<std::string> frmRentPayment::Errors() {
    std::vector<std::string> lines = EntryForm::Errors();
    const auto day = ui_->dpEffectiveDate->Day();
    if (day && !day->IsSet()) lines.emplace_back("A payment date must be entered.");
    return lines;
}

void frmRentPayment::Store() {
    ReadTicks();
    payment_.dateEffective = ui_->dpEffectiveDate->Day().value_or(platform::Date());
    payment_.fromType = static_cast<std::int16_t>(GetSelectedId(*ui_->cboFromType));
    payment_.fromId = GetSelectedId(*ui_->cboFrom);
    payment_.fromName = FromScreen(ui_->cboFrom->currentText());
    ReadReceiver();
    payment_.checkNumber = FromScreen(ui_->txtCheckNumber->text());
    payment_.paymentWord = FromScreen(ui_->cboPaymentType->currentText());
    payment_.description = FromScreen(ui_->txtDescription->text());
    try {
        SubmitPayment(payment_, update_);
    } catch (const platform::ConflictError&) {
        // The list shows what the books have now before the user reads why nothing was posted.
        Quietly([this] { RereadCharges(); });
        throw;
    }
}

void frmRentPayment::Refresh(std::int16_t kind) {
    const std::int32_t fromType = GetSelectedId(*ui_->cboFromType);
    if (kind == core::kAccount) FillAccounts();
    if (kind == fromType && (kind == core::kAccount || kind == core::kTenant)) FillPayers();
    if (kind == core::kRentLog) RereadCharges();
    if (kind == core::kTransaction) ShowTotal();
}

} // namespace leases::screens
