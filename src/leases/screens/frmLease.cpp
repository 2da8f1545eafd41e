#include "leases/screens/frmLease.h"

#include <QMenuBar>

#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/EditRecord.h"
#include "core/KindOfTable.h"
#include "core/RecordHelpers.h"
#include "core/RecordKinds.h"
#include "core/RecordNotices.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "core/binding/Binding.h"
#include "core/binding/ComboList.h"
#include "core/binding/ControlValue.h"
#include "core/binding/NumberBox.h"
#include "core/binding/Tags.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/TabPages.h"
#include "leases/Credits.h"
#include "leases/mLease.h"
#include "leases/screens/Lease_Ledger.h"
#include "leases/screens/frmChargeFrom.h"
#include "platform/database/FieldReadings.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "ui_frmLease.h"
#include "ui_frmLeaseFees.h"
#include "ui_frmLeaseMore.h"
#include "ui_frmLeaseNotes.h"
#include "ui_frmLeaseTerms.h"

namespace leases::screens {

using core::binding::FillList;
using core::binding::GetSelectedId;
using core::binding::SelectedKind;
using core::forms::Guarded;
using platform::qt::FromScreen;

frmLease::frmLease(QWidget* parent)
    : RecordForm({core::kLease, "Lease", "IdLease"}, parent),
      ui_(std::make_unique<Ui::frmLease>()),
      terms_(std::make_unique<Ui::frmLeaseTerms>()),
      fees_(std::make_unique<Ui::frmLeaseFees>()),
      more_(std::make_unique<Ui::frmLeaseMore>()),
      notes_(std::make_unique<Ui::frmLeaseNotes>()) {
    ui_->setupUi(this);
    terms_->setupUi(ui_->tabTerms);
    fees_->setupUi(ui_->tabFees);
    more_->setupUi(ui_->tabMore);
    notes_->setupUi(ui_->tabNotes);
    for (QToolButton* const zoom : {terms_->cmdZoomUnit, terms_->cmdZoomTenant})
        zoom->setIcon(platform::qt::LoadIcon(QStringLiteral("open")));
    MakePanels();
    MakeMenu();
    Wire();
    Connect();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmLease::~frmLease() = default;

void frmLease::MakePanels() {
    ucLL_ = new Lease_Ledger(this);
    ucLL_->setObjectName(QStringLiteral("ucLL"));
    ui_->ledgerPage->insertWidget(0, ucLL_, 1);
}

void frmLease::MakeMenu() {
    struct Item {
        LeaseCommand command;
        const char* name;
        QString text;
    };
    auto* const bar = new QMenuBar(this);
    QMenu* const menu = bar->addMenu(tr("&Lease"));
    for (const Item& item :
         {Item{LeaseCommand::GiveNotice, "mnuGiveNotice", tr("&Give Notice...")},
          Item{LeaseCommand::CancelNotice, "mnuCancelNotice", tr("&Cancel Notice...")},
          Item{LeaseCommand::BreakLease, "mnuBreakLease", tr("&Break Lease...")},
          Item{LeaseCommand::RenewLease, "mnuRenewLease", tr("Re&new Lease...")},
          Item{LeaseCommand::RollForward, "mnuRollFOrward", tr("Roll &Forward...")},
          Item{LeaseCommand::Reprocess, "mnuReprocess", tr("&Reprocess...")}}) {
        if (item.command == LeaseCommand::RollForward) menu->addSeparator();
        QAction* const action = menu->addAction(item.text);
        action->setObjectName(QLatin1String(item.name));
        commands_[static_cast<std::size_t>(item.command)] = action;
        connect(action, &QAction::triggered, this,
                [this, command = item.command] { Guarded([&] { Run(command); }); });
    }
    layout()->setMenuBar(bar);
}

void frmLease::Connect() {
    const auto guarded = [this](auto work) {
        return [this, work] { Guarded([&] { (this->*work)(); }); };
    };
    connect(terms_->dpDateActive, &QLineEdit::textChanged, this, &frmLease::DateActiveChanged);
    connect(terms_->cboIdUnit, &QComboBox::currentIndexChanged, this,
            guarded(&frmLease::UnitChosen));
    connect(terms_->cboTermType, &QComboBox::currentTextChanged, this, &frmLease::ShowParts);
    connect(more_->chkSubsidy, &QCheckBox::toggled, this, &frmLease::ShowParts);
    connect(more_->chkPurchaseOption, &QCheckBox::toggled, this, &frmLease::ShowParts);
    connect(more_->cboSubsidyType, &QComboBox::currentIndexChanged, this,
            guarded(&frmLease::FillPayors));
    connect(ucLL_, &Lease_Ledger::Changed, this, guarded(&frmLease::ShowBalances));
    connect(terms_->cmdZoomUnit, &QAbstractButton::clicked, this, [this] { Zoom(core::kUnit); });
    connect(terms_->cmdZoomTenant, &QAbstractButton::clicked, this,
            [this] { Zoom(core::kTenant); });
}

void frmLease::Setup(std::int32_t idLease) {
    bool found = idLease == 0;
    if (idLease != 0) {
        // A lease that can't be brought up to date must still open, so that it can be mended.
        Guarded([&] { UpdateLeaseById(idLease, WalkMode::CatchUp); });
        platform::Recordset rows;
        found = core::OneRecordFound(
            core::OpenRecordset(rows, "SELECT IdLease FROM Lease WHERE IdLease = ?",
                                platform::CursorMode::ReadOnly, {idLease}));
    }
    const bool isStored = idLease != 0 && found;
    age_ = isStored ? LeaseAge::Stored : LeaseAge::New;
    OpenRecord(
        isStored ? idLease : 0, [this] { FillLists(); }, [this] { ShowProposal(); });
}

void frmLease::FillLists() {
    using core::binding::FillFromWords;
    if (terms_->cboTermType->count() == 0) {
        FillFromWords(*terms_->cboTermType, core::kLeaseTermTypes);
        FillFromWords(*terms_->cboExpireOption, core::kExpireOptions);
        core::binding::AddKind(*more_->cboSubsidyType, tr("Account"), core::kAccount);
        core::binding::AddKind(*more_->cboSubsidyType, tr("Tenant"), core::kTenant);
    }
    // If a list can't be read, the others are filled all the same.
    Guarded([this] { FillPayors(); });
    Guarded([this] { FillList(core::kUnit, *terms_->cboIdUnit, {.addNone = true}); });
    Guarded([this] { FillList(core::kTenant, *terms_->cboIdTenant, {.addNone = true}); });
}

void frmLease::FillPayors() {
    FillPayorsOf(SelectedKind(*more_->cboSubsidyType));
}

void frmLease::FillPayorsOf(core::RecordKind kind) {
    FillList(kind, *more_->cboSubsidy, {.addNone = true});
}

/// Shows the proposed contents of a new lease like a stored row, without storing them.
void frmLease::ShowProposal() {
    platform::Recordset row;
    ProposeLease(row);
    core::binding::BindFromRecord(*this, row);
    ShowSettles(false);
    ShowEnabled();
}

void frmLease::FillListsFor(platform::Recordset& row) {
    const core::RecordKind kind = core::KindOf(row["SubsidyType"]);
    FillPayorsOf(kind == core::kNone ? core::kAccount : kind);
}

void frmLease::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    ShowSettles(SettlesCharges(platform::IdOf(row["IdLease"])));
    ShowEnabled();
}

/// Shows the setting, which isn't a field of the lease's row.
void frmLease::ShowSettles(bool settles) {
    settles_ = settles;
    fees_->chkSettleCharges->setChecked(settles);
}

void frmLease::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    SaveLease(row, age_);
    const bool settles = fees_->chkSettleCharges->isChecked();
    if (settles != settles_) SetSettlesCharges(platform::IdOf(row["IdLease"]), settles);
}

void frmLease::AfterSave() {
    age_ = LeaseAge::Stored;
    saved_ = true;
}

void frmLease::ShowCaption() {
    if (Id() == 0) {
        setWindowTitle(tr("Adding New Lease"));
        ui_->lblTitle->setText(tr("New Lease (Press Apply to Save)"));
    } else {
        const QString name =
            tr("%1 at %2")
                .arg(terms_->cboIdTenant->currentText(), terms_->cboIdUnit->currentText());
        setWindowTitle(tr("Lease: %1").arg(name));
        ui_->lblTitle->setText(tr("Editing Lease: %1").arg(name));
    }
    Guarded([this] {
        ucLL_->Load(Id());
        ShowBalances();
    });
    ShowEnabled();
}

std::vector<std::string> frmLease::Errors() {
    return LeaseErrors({GetSelectedId(*terms_->cboIdUnit), GetSelectedId(*terms_->cboIdTenant),
                        terms_->txtRent->Amount().value_or(platform::Currency()),
                        !terms_->dpDateNextDue->text().trimmed().isEmpty()});
}

/// Asks from which day a lease that is entered late is charged; returns false if the user cancels.
bool frmLease::Agreed() {
    const bool isNew = age_ == LeaseAge::New;
    platform::Recordset row =
        isNew ? core::NewRow("Lease") : core::Read("SELECT * FROM Lease WHERE IdLease = ?", {Id()});
    if (!isNew && row.Eof()) return true;
    RecordForm::WriteRow(row); // which isn't stored
    if (isNew) SetBeginning(row);
    const auto nextDue = AskChargeFrom(LeaseTerms::Read(row), *this);
    if (nextDue && nextDue->IsSet()) terms_->dpDateNextDue->SetDay(*nextDue);
    return nextDue.has_value();
}

void frmLease::Refresh(core::RecordKind kind) {
    const bool isNew = age_ == LeaseAge::New;
    if (kind == core::kUnit && isNew) FillList(core::kUnit, *terms_->cboIdUnit, {.addNone = true});
    if (kind == core::kTenant && isNew) {
        FillList(core::kTenant, *terms_->cboIdTenant, {.addNone = true});
    }
    if (kind == core::kAccount || kind == core::kTenant) {
        if (kind == SelectedKind(*more_->cboSubsidyType)) FillPayors();
    }
}

void frmLease::DateActiveChanged() {
    if (Loading() || age_ != LeaseAge::New) return;
    const auto day = terms_->dpDateActive->Day();
    if (!day || !day->IsSet()) return;
    terms_->dpDateRenewed->SetDay(*day);
    terms_->dpDateNextDue->SetDay(*day);
}

void frmLease::UnitChosen() {
    if (Loading() || age_ != LeaseAge::New) return;
    terms_->txtRent->SetAmount(core::GetUnitRent(GetSelectedId(*terms_->cboIdUnit)));
}

void frmLease::ShowEnabled() {
    ShowAvailable();
    ShowParts();
}

void frmLease::ShowAvailable() {
    const LeaseAvailability can = AvailabilityOf(age_, FromScreen(ui_->txtStatus->text()));
    const auto enable = [this](LeaseCommand command, bool enabled) {
        commands_[static_cast<std::size_t>(command)]->setEnabled(enabled);
    };
    enable(LeaseCommand::GiveNotice, can.giveNotice);
    enable(LeaseCommand::BreakLease, can.breakLease);
    enable(LeaseCommand::CancelNotice, can.cancelNotice);
    enable(LeaseCommand::RenewLease, can.renewLease);
    enable(LeaseCommand::RollForward, can.runs);
    enable(LeaseCommand::Reprocess, can.runs);
    terms_->dpDateActive->setEnabled(can.dateActive);
    terms_->dpDateRenewed->setEnabled(can.dateRenewed);
    terms_->dpDateVacating->setEnabled(can.dateVacating);
    const LoadingGuard loading(*this);
    if (can.blankVacating) terms_->dpDateVacating->clear();
    // Another can be chosen if the tenant or unit was deleted, or while nothing is saved.
    const auto isThere = [](core::RecordKind kind, const QComboBox& party) {
        return core::RecordExists(kind, GetSelectedId(party));
    };
    terms_->cboIdTenant->setEnabled(can.parties || !isThere(core::kTenant, *terms_->cboIdTenant));
    terms_->cboIdUnit->setEnabled(can.parties || !isThere(core::kUnit, *terms_->cboIdUnit));
}

/// Shows the parts of the screen that depend on the choices.
void frmLease::ShowParts() {
    const bool ends = core::HasEnd(FromScreen(terms_->cboTermType->currentText()));
    terms_->txtTerm->setEnabled(ends);
    terms_->lblExpireOption->setEnabled(ends);
    terms_->cboExpireOption->setEnabled(ends);
    const bool subsidy = more_->chkSubsidy->isChecked();
    const bool option = more_->chkPurchaseOption->isChecked();
    more_->fraSubsidy->setEnabled(subsidy);
    more_->fraLeaseOption->setEnabled(option);
    ucLL_->OfferTabs(subsidy, option);
}

/// Shows the present sums of the ledger.
void frmLease::ShowBalances() {
    if (Id() == 0) return;
    const LoadingGuard loading(*this);
    platform::Recordset row;
    ReadBalances(row, Id());
    if (row.Eof()) return;
    for (QWidget* const control : std::initializer_list<QWidget*>{
             ui_->txtRentDue, more_->txtSubsDue, more_->txtOptionBal, ui_->lblDepositTotal,
             ui_->lblDepositPaid, ui_->lblDepositDue, ui_->lblDepositRefunded,
             ui_->lblDepositCharged, ui_->lblDepositBalance}) {
        const auto field = row[core::binding::FieldOfTag(core::binding::TagOf(*control))];
        if (!field.IsNull()) core::binding::ShowValue(*control, '$', field.Value());
    }
}

void frmLease::FollowOthers(const core::binding::Controls& /*touched*/) {
    if (Id() != 0 && fees_->chkSettleCharges->isChecked() == settles_)
        ShowSettles(SettlesCharges(Id()));
    ShowAvailable();
    ShowBalances();
}

void frmLease::Run(LeaseCommand command) {
    if (!AskWhether(command)) return;
    saved_ = false;
    Apply();
    if (!saved_) return;
    const std::int32_t id = Id();
    const double days = core::binding::NumberIn(*terms_->txtNoticeDays);
    Perform([&] {
        RunCommand(command, id, platform::RoundToInt16(days));
        if (command == LeaseCommand::Reprocess || command == LeaseCommand::RollForward) {
            Setup(id);
        } else {
            const LoadingGuard loading(*this);
            Load();
        }
    });
}

void frmLease::Zoom(core::RecordKind kind) {
    const QComboBox& combo = kind == core::kUnit ? *terms_->cboIdUnit : *terms_->cboIdTenant;
    const std::int32_t id = GetSelectedId(combo);
    if (id != 0) Guarded([&] { core::EditRecord(kind, id); });
}

} // namespace leases::screens
