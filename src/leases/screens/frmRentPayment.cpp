#include "leases/screens/frmRentPayment.h"

#include <QHeaderView>
#include <QMenu>
#include <algorithm>

#include "core/Descriptions.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/OpenForms.h"
#include "leases/DeleteCharges.h"
#include "leases/LedgerTable.h"
#include "leases/PaymentOutlook.h"
#include "leases/screens/PickMenu.h"
#include "leases/screens/frmRentSplit.h"
#include "leases/screens/frmReturnPayment.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "reports/PrintReport.h"
#include "reports/ReportMenus.h"
#include "ui_frmRentPayment.h"

namespace leases::screens {

using core::binding::SelectById;
using core::binding::SelectedKind;
using core::forms::Guarded;
using platform::qt::ToScreen;

frmRentPayment::frmRentPayment(QWidget* parent)
    : PaymentForm(parent), ui_(std::make_unique<Ui::frmRentPayment>()) {
    ui_->setupUi(this);
    ui_->dpEffectiveDate->SetRequired(true);
    ui_->lvwCharges->SetTicks(true);
    core::binding::AddKind(*ui_->cboFromType, tr("Account"), core::kAccount);
    core::binding::AddKind(*ui_->cboFromType, tr("Tenant"), core::kTenant);
    AddChargeItems();
    WirePayment(*ui_->lvwCharges, MakePaymentMenu());
    Connect();
}

frmRentPayment::~frmRentPayment() = default;

QMenu* frmRentPayment::MakePaymentMenu() {
    auto* const payment = new QMenu(tr("Pa&yment"), this);
    QAction* const submit = payment->addAction(tr("&Submit"));
    submit->setObjectName(QStringLiteral("mnuSubmit"));
    connect(submit, &QAction::triggered, this, &frmRentPayment::Submit);
    receiptMenu_ = payment->addMenu(tr("Print &Receipt"));
    receiptMenu_->setObjectName(QStringLiteral("mnuReceipts"));
    receiptMenu_->setToolTipsVisible(true);
    return_ = payment->addAction(tr("Re&turned by the Bank..."));
    return_->setObjectName(QStringLiteral("mnuReturnPayment"));
    // It isn't run as a command of this form, which closes first.
    connect(return_, &QAction::triggered, this, [this] { Guarded([this] { ReturnPayment(); }); });
    return payment;
}

/// Fills in the receipts of the catalogue, for a payment that has been posted.
void frmRentPayment::FillReceipts() {
    receiptMenu_->clear();
    const auto items = reports::ReceiptsOf(reports::RecordForm::Lease);
    for (const reports::ReportMenuItem& item : items) {
        QAction* const action =
            receiptMenu_->addAction(ToScreen(item.caption).replace(u'&', QLatin1String("&&")));
        action->setObjectName(QStringLiteral("mnuReceiptItem"));
        action->setEnabled(!payment_.IsNew() && reports::HasReportViewer());
        if (payment_.IsNew())
            action->setToolTip(tr("Submit the payment first, then open it again"));
        connect(action, &QAction::triggered, this, [this, index = item.index] {
            Perform([&] { reports::PrintReport(payment_.idTransaction, index); });
        });
    }
    if (!items.empty()) return;
    QAction* const none = receiptMenu_->addAction(tr("(no receipts)"));
    none->setEnabled(false);
    none->setToolTip(tr("The reports folder has no receipt for leases"));
}

void frmRentPayment::AddChargeItems() {
    QMenu& menu = ChargeMenu();
    AddPickMenu(menu, QStringLiteral("mnuCheck"),
                [this](ChargePick pick) { ui_->lvwCharges->Tick(pick); });
    menu.addSeparator();
    AddPickMenu(menu, QStringLiteral("mnuSelect"),
                [this](ChargePick pick) { ui_->lvwCharges->Select(pick); });
    menu.addSeparator();
    AddItem(menu, "mnuChargeAdd", tr("A&dd Charge..."), [this] { AddCharge(); });
    AddItem(menu, "mnuChargeEdit", tr("&Edit Charge..."),
            [this] { EditCharge(ui_->lvwCharges->CurrentId()); });
    AddItem(menu, "mnuChargeSplit", tr("S&plit Charge..."), [this] { SplitCharge(); });
    AddItem(menu, "mnuChargeDelete", tr("De&lete Charge"), [this] { RemoveCharges(); });
}

void frmRentPayment::Connect() {
    connect(ui_->cboFromType, &QComboBox::currentIndexChanged, this,
            [this] { Guarded([this] { FillPayers(); }); });
    connect(ui_->lvwCharges, &ChargeList::TicksChanged, this,
            [this] { Guarded([this] { TicksChanged(); }); });
    connect(ui_->cmdRestoreTicks, &QPushButton::clicked, this,
            [this] { Perform([this] { RestoreTicks(); }); });
    connect(ui_->cboTo, &QComboBox::currentTextChanged, this, [this] {
        if (!Loading()) Guarded([this] { ShowTotal(); });
    });
    connect(ui_->lvwCharges, &ChargeList::SelectionMoved, this, &frmRentPayment::ShowAvailable);
    connect(ui_->lvwCharges, &ChargeList::RowChosen, this,
            [this](std::int32_t id) { Perform([&] { EditCharge(id); }); });
    connect(ui_->lvwCharges, &ChargeList::DeleteAsked, this,
            [this] { Perform([this] { RemoveCharges(); }); });
    connect(ui_->chkShowPending, &QCheckBox::toggled, this,
            [this] { Guarded([this] { Quietly([this] { RereadCharges(); }); }); });
    connect(ui_->amountPanel, &AmountPanel::Changed, this, [this] {
        if (!Loading()) Guarded([this] { ShowTotal(); });
    });
    connect(ui_->amountPanel, &AmountPanel::MoveAsked, this,
            [this](int step) { Guarded([&] { MoveCharge(step); }); });
    // An amount settles the charges in the order in which the list shows them.
    connect(ui_->lvwCharges->header(), &QHeaderView::sectionClicked, this,
            [this] { Guarded([this] { ShowTotal(); }); });
    for (QLineEdit* const box :
         std::initializer_list<QLineEdit*>{ui_->dpEffectiveDate, ui_->txtDescription}) {
        connect(box, &QLineEdit::textChanged, this, [this] {
            if (!Loading() && ui_->amountPanel->IsUsed()) Guarded([this] { ShowTotal(); });
        });
    }
    connect(ui_->cmdSplit, &QPushButton::clicked, this,
            [this] { Perform([this] { SplitCharge(); }); });
}

void frmRentPayment::Setup(std::int32_t idTransaction, std::int32_t idLease,
                           TransactionClass rentClass, LeaseUpdate update) {
    update_ = update;
    OpenPayment(idTransaction, [&] {
        payment_ =
            idTransaction == 0 ? ProposePayment(idLease, rentClass) : ReadPayment(idTransaction);
        if (!payment_.dateEffective.IsSet()) payment_.dateEffective = platform::Today();
    });
}

void frmRentPayment::ShowPayment() {
    setWindowTitle(
        tr("%1: %2").arg(ToScreen(payment_.paymentType),
                         ToScreen(core::GetDescription(core::kLease, payment_.idLease))));
    ui_->chkShowPending->setVisible(!payment_.IsNew());
    ui_->amountPanel->setVisible(payment_.IsNew());
    return_->setEnabled(!payment_.IsNew());
    ShowEntries(payment_, PaymentWords(payment_.rentClass));
    FillReceipts();
    ShowCharges();
}

void frmRentPayment::FillParties() {
    FillAccounts();
    SelectById(*ui_->cboFromType, core::KindNumber(payment_.from.type), {.selectFirst = true});
    FillPayers();
}

void frmRentPayment::FillPayers() {
    FillParty(SelectedKind(*ui_->cboFromType), *ui_->cboFrom);
}

void frmRentPayment::FillAccounts() {
    FillParty(core::kAccount, *ui_->cboTo);
}

void frmRentPayment::ShowCharges() {
    ReadCharges(payment_,
                ui_->chkShowPending->isChecked() ? OpenCharges::Offer : OpenCharges::Leave);
    ListCharges();
}

void frmRentPayment::ListCharges() {
    std::vector<bool> ticks;
    for (const PaymentCharge& charge : payment_.charges)
        ticks.push_back(charge.selected);
    ui_->lvwCharges->ShowTable(ChargeTable(payment_.charges), ticks);
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

/// Reads the charges again, which ticks every open one, but restores the user's own ticks.
void frmRentPayment::RereadCharges() {
    ReadTicks();
    if (!tickedAgain_) ticks_.Keep(payment_);
    ReadCharges(payment_,
                ui_->chkShowPending->isChecked() ? OpenCharges::Offer : OpenCharges::Leave);
    tickedAgain_ = ticks_.DifferFrom(payment_);
    if (!order_.empty()) SortCharges(payment_, order_);
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

AmountPayment frmRentPayment::ReadAmount() {
    ReadTicks();
    AmountPayment amount{payment_, ui_->amountPanel->Received().value_or(platform::Currency()),
                         ui_->amountPanel->Part()};
    ReadEntries(amount.payment);
    amount.payment.from.type = SelectedKind(*ui_->cboFromType);
    SortCharges(amount.payment, ui_->lvwCharges->ShownIds());
    return amount;
}

void frmRentPayment::ShowAmount() {
    const AmountPayment amount = ReadAmount();
    ui_->amountPanel->ShowPreview(PreviewAmount(amount));
    ui_->txtAmount->setText(ToScreen(platform::FormatNumber(amount.received, "#.00")));
    ui_->lblOutlook->setText(ToScreen(DescribeAmount(amount)));
    ui_->cmdRestoreTicks->setVisible(tickedAgain_);
    // The preview needs room that the form may not have had until now.
    const int least = layout()->totalMinimumSize().height();
    if (height() < least) resize(width(), least);
}

void frmRentPayment::MoveCharge(int step) {
    if (!ui_->lvwCharges->MoveCurrent(step)) return;
    order_ = ui_->lvwCharges->ShownIds();
    MarkDirty();
    ShowTotal();
}

/// This screen shows the payment as it was before, so it closes.
void frmRentPayment::ReturnPayment() {
    const std::int32_t id = payment_.idTransaction;
    if (close()) (new frmReturnPayment)->Setup(id);
}

void frmRentPayment::ShowTotal() {
    if (payment_.IsNew() && ui_->amountPanel->IsUsed()) return ShowAmount();
    ReadTicks();
    ReadReceiver(payment_);
    ui_->txtAmount->setText(ToScreen(platform::FormatNumber(payment_.Total(), "#.00")));
    QString outlook = ToScreen(DescribeOutlook(payment_));
    if (tickedAgain_) {
        outlook += payment_.IsNew()
                       ? tr(". The charges changed: every open charge is ticked again")
                       : tr(". The charges changed: the ticks are as they were stored");
    }
    ui_->lblOutlook->setText(outlook);
    ui_->cmdRestoreTicks->setVisible(tickedAgain_);
}

void frmRentPayment::ShowAvailable() {
    const bool isChosen = ui_->lvwCharges->CurrentId() != 0;
    const bool isRent = payment_.rentClass == TransactionClass::Rent;
    ui_->cmdSplit->setEnabled(isChosen);
    for (QAction* const action : ChargeMenu().actions()) {
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
    if (split_ && split_->isVisible()) return core::forms::BringToFront(*split_);
    auto* const split = new frmRentSplit;
    split_ = split;
    connect(split, &frmRentSplit::Saved, this, &frmRentPayment::ChargeSplit);
    split->Setup(id);
}

void frmRentPayment::RemoveCharges() {
    DeleteCharges(payment_.idLease, ui_->lvwCharges->SelectedIds(), "Delete all selected charges?",
                  payment_.IsNew() ? ShownAs::Open : ShownAs::OpenOrSettled);
}

std::vector<std::string> frmRentPayment::Errors() {
    std::vector<std::string> lines = EntryForm::Errors();
    const auto day = ui_->dpEffectiveDate->Day();
    if (day && !day->IsSet()) lines.emplace_back("A payment date must be entered.");
    if (!payment_.IsNew() || !ui_->amountPanel->IsUsed()) return lines;
    if (!ui_->amountPanel->Received()) {
        lines.emplace_back("The amount received is not an amount of money.");
        return lines;
    }
    const std::vector<std::string> amount = AmountErrors(ReadAmount());
    lines.insert(lines.end(), amount.begin(), amount.end());
    return lines;
}

void frmRentPayment::PostPayment() {
    ReadTicks();
    ReadEntries(payment_);
    payment_.from.type = SelectedKind(*ui_->cboFromType);
    if (payment_.IsNew() && ui_->amountPanel->IsUsed()) {
        SubmitAmount(ReadAmount(), update_);
    } else {
        SubmitPayment(payment_, update_);
    }
}

void frmRentPayment::Refresh(core::RecordKind kind) {
    const core::RecordKind fromType = SelectedKind(*ui_->cboFromType);
    if (kind == core::kAccount) FillAccounts();
    if (kind == fromType && (kind == core::kAccount || kind == core::kTenant)) FillPayers();
    if (kind == core::kRentLog) RereadCharges();
    if (kind == core::kTransaction) ShowTotal();
}

} // namespace leases::screens
